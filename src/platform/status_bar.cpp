#include "platform/status_bar.h"

#include <QLabel>

namespace umbrakit {

// The label has no accessible name of its own: screen readers then take the text it shows as
// its name, and QLabel announces every change of that text as a change of the name.
StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent), text_(new QLabel(this)) {
    text_->setObjectName("SimpleText");
    text_->setTextFormat(Qt::PlainText);
    setSizeGripEnabled(true);
    addWidget(text_, 1);
}

QString StatusBar::SimpleText() const {
    return text_->text();
}

void StatusBar::setSimpleText(const QString& text) {
    text_->setText(text);
}

} // namespace umbrakit
