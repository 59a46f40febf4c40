// Placing controls by their twips and setting up the program's fixed dialog windows.
#pragma once

#include <QDialog>
#include <QString>

#include "platform/accessible_names.h"
#include "platform/twips.h"

namespace umbrakit {

// Names the control, puts it at its place and size, and gives it its spoken name.
template <typename Widget>
Widget* place(Widget* widget, const char* name, int left, int top, int width, int height) {
    widget->setObjectName(name);
    widget->setGeometry(twipsRect(left, top, width, height));
    nameForScreenReaders(widget);
    return widget;
}

// A fixed dialog frame: it cannot be resized, minimised or maximised, and has a close box.
// It has no owner, and only the main window decides when the program ends.
void setUpFixedDialog(QDialog& dialog, const char* name, const QString& caption, int clientWidth,
                      int clientHeight);

constexpr Qt::WindowFlags kFixedDialogFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint |
                                              Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                              Qt::WindowCloseButtonHint;

} // namespace umbrakit
