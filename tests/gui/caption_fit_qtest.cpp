// Every caption of every window shown whole as Qt draws it in the style's room for the text, under
// one font family at a time (cmake/fonts.cmake): the system's alone, then the program's own.
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOption>
#include <QtTest>

#include "gui/about/about_box.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/bundled_fonts.h"
#include "platform/classic_font.h"
#include "platform/classic_frame.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {

// The style's room for a button's caption, as the button paints it (initStyleOption is protected).
template <class Button> struct Exposed : Button { using Button::initStyleOption; };
QRect roomOf(const QAbstractButton* button) {
    QStyleOptionButton option;
    if (auto* push = qobject_cast<const QPushButton*>(button)) {
        (push->*&Exposed<QPushButton>::initStyleOption)(&option);
        return push->style()->subElementRect(QStyle::SE_PushButtonContents, &option, push);
    }
    (static_cast<const QCheckBox*>(button)->*&Exposed<QCheckBox>::initStyleOption)(&option);
    return button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button);
}

QString shown(QString caption) {
    return caption.replace("&&", "\x01").remove('&').replace("\x01", "&");
}

// Where the text's ink falls when drawn with these flags in this room.
QRect inkOf(const QFontMetrics& metrics, const QRect& room, int flags, const QString& text) {
    const QRect lines = metrics.boundingRect(room, flags, text);
    if ((flags & Qt::TextWordWrap) && lines.height() > metrics.lineSpacing())
        return lines; // wrapped: whole lines must fit
    const QRect ink = metrics.tightBoundingRect(text);
    const int baseline = lines.top() + metrics.ascent();
    return QRect(lines.left(), baseline + ink.top(), lines.width(), ink.height());
}

// The part of the control that no neighbour in its row, stacked above it, covers.
QRegion uncovered(const QWidget* control) {
    QRegion shown(control->rect());
    const QObjectList& siblings = control->parentWidget()->children();
    for (qsizetype i = siblings.indexOf(control) + 1; i < siblings.size(); ++i) {
        auto* above = qobject_cast<const QWidget*>(siblings[i]);
        const int middle = control->geometry().center().y();
        if (above && !above->isHidden() && !above->isWindow() && above->y() <= middle &&
            above->geometry().bottom() >= middle)
            shown -= above->geometry().translated(-control->pos());
    }
    return shown;
}

// One line for each caption of the window (and its menus) that does not fit its room.
QStringList cutCaptions(QWidget* window) {
    QStringList cut;
    auto check = [&cut](const QWidget* w, const QString& text, const QRect& room, int flags,
                        const QRect& bounds) {
        const QRect ink = inkOf(w->fontMetrics(), room, flags | Qt::TextShowMnemonic, shown(text));
        const QRegion visible = uncovered(w).intersected(bounds);
        if (!QRegion(ink).subtracted(visible).isEmpty() || ink.width() > room.width())
            cut << QString("%1 \"%2\" needs %3x%4, has %5 (%6)")
                       .arg(w->objectName(), text, QString::number(ink.width()),
                            QString::number(ink.height()), QString::number(room.width()),
                            QFontInfo(w->font()).family());
    };
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>())
        if (!button->text().isEmpty())
            check(button, button->text(), roomOf(button),
                  qobject_cast<QPushButton*>(button) ? Qt::AlignCenter : Qt::AlignVCenter,
                  button->rect());
    for (QLabel* label : window->findChildren<QLabel*>()) {
        const int wrap = label->wordWrap() ? Qt::TextWordWrap : 0;
        check(label, label->text(), label->contentsRect(), int(label->alignment()) | wrap,
              label->contentsRect());
        if (auto* frame = qobject_cast<ClassicFrame*>(label->parentWidget()))
            if (!frame->rect().adjusted(2, 0, -2, 0).contains(label->geometry()))
                cut << frame->objectName() + " \"" + frame->title() + "\" runs out of its frame";
    }
    for (QComboBox* list : window->findChildren<QComboBox*>()) {
        QStyleOptionComboBox option;
        option.initFrom(list);
        const QRect room = list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, list);
        for (int row = 0; row < list->count(); ++row)
            check(list, list->itemText(row), room, Qt::AlignVCenter, list->rect());
    }
    for (QMenuBar* bar : window->findChildren<QMenuBar*>())
        for (QAction* entry : bar->actions()) {
            const QRect room = bar->actionGeometry(entry);
            check(bar, entry->text(), room, Qt::AlignCenter, bar->rect().intersected(room));
        }
    for (QMenu* menu : window->findChildren<QMenu*>()) {
        menu->ensurePolished();
        for (QAction* entry : menu->actions()) { // a separator has no text
            const QString text = shown(entry->text()) + entry->shortcut().toString();
            if (menu->fontMetrics().horizontalAdvance(text) > menu->actionGeometry(entry).width())
                cut << menu->objectName() + " \"" + entry->text() + "\" runs out of its menu";
        }
    }
    return cut;
}

// Every window as it shows the most (the longest status text, the paths dialog, the About box),
// under the family that the windows' default font resolves to (when the test names one).
void everyCaptionWholeIn(const QString& family) {
    if (!qEnvironmentVariableIsEmpty("CAPTION_FIT_FAMILY"))
        QCOMPARE(QFontInfo(defaultControlFont()).family(), family);
    TestApp app;
    app.window->show();
    app.window->setPathsEntry->trigger();
    app.window->aboutEntry->trigger();
    QTest::mouseClick(app.window->runLightingButton, Qt::LeftButton); // nothing is set yet
    QStringList cut = cutCaptions(app.window.get());
    if (app.status() != "Error: Incomplete Config. Set Paths or Load Config.")
        cut << "the status line shows \"" + app.status() + "\", not the error";
    cut << cutCaptions(app.window->pathsDialog()->window())
        << cutCaptions(app.window->aboutBox()->window());
    app.window->aboutBox()->unload();
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join("\n")));
}

} // namespace

class CaptionFitTest : public QObject {
    Q_OBJECT
  private slots:
    // The system's font alone, the program's own withheld: the fitting keeps every caption.
    void systemFontOnly() { everyCaptionWholeIn(qEnvironmentVariable("CAPTION_FIT_FAMILY")); }

    // With the program's own font, as the program starts.
    void programFont() {
#ifndef UMBRAKIT_BUNDLED_FONT
        QSKIP("built without its own font");
#endif
        QVERIFY(installBundledFonts());
        everyCaptionWholeIn("Liberation Sans");
    }
};

QTEST_MAIN(CaptionFitTest)
#include "caption_fit_qtest.moc"
