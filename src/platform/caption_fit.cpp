#include "platform/caption_fit.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

namespace umbrakit {

namespace {
constexpr int kNarrowestStretch = 80;
constexpr double kSmallestPointSize = 6;
constexpr double kPointStep = 0.25;

// How far the control shows from its left edge: a neighbour in the same row, stacked above it,
// may cover its right end (the classic layouts let neighbours overlap by a pixel).
int shownWidth(const QWidget* control) {
    int shown = control->width();
    const QObjectList& siblings = control->parentWidget()->children();
    for (qsizetype i = siblings.indexOf(control) + 1; i < siblings.size(); ++i) {
        auto* above = qobject_cast<const QWidget*>(siblings[i]);
        if (above && !above->isHidden() && !above->isWindow() && above->x() > control->x() &&
            above->geometry().contains(above->x(), control->geometry().center().y()))
            shown = std::min(shown, above->x() - control->x());
    }
    return shown;
}

// The room the style leaves a button's text: inside a push button's frame and default-button
// indicator, beside a check box's indicator.
QRect textRoomOf(const QAbstractButton* button) {
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    auto* push = qobject_cast<const QPushButton*>(button);
    if (push && push->autoDefault())
        option.features |= QStyleOptionButton::AutoDefaultButton;
    const auto room = push ? QStyle::SE_PushButtonContents : QStyle::SE_CheckBoxContents;
    return button->style()->subElementRect(room, &option, button);
}

// Whether the text, laid out in the room as it is drawn (fractions kept: at 150% or 200% text is
// laid out unhinted; a last glyph's overhang counted), stays inside the room where it shows.
bool fitsRoom(const QWidget* control, const QString& text, const QRect& room, int flags) {
    const QRectF box = QFontMetricsF(control->font()).boundingRect(QRectF(room), flags, text);
    return box.left() >= room.left() &&
           box.right() <= std::min(room.x() + room.width(), shownWidth(control));
}

bool fits(const QWidget* control) {
    if (auto* button = qobject_cast<const QAbstractButton*>(control)) {
        const int align = qobject_cast<const QPushButton*>(button)
                              ? Qt::AlignCenter
                              : Qt::AlignLeft | Qt::AlignVCenter;
        return fitsRoom(button, button->text(), textRoomOf(button), align | Qt::TextShowMnemonic);
    }
    auto* label = qobject_cast<const QLabel*>(control);
    if (label->wordWrap())
        return label->heightForWidth(shownWidth(label)) <= label->height();
    return fitsRoom(label, label->text(), label->contentsRect(), int(label->alignment()));
}

bool hasCaption(const QWidget* control) {
    if (auto* button = qobject_cast<const QAbstractButton*>(control))
        return !button->text().isEmpty();
    auto* label = qobject_cast<const QLabel*>(control);
    return label && !label->text().isEmpty();
}

// Narrower first, which keeps the caption's height; smaller only where that is not enough.
void fitCaption(QWidget* control) {
    QFont font = control->font();
    for (int stretch = 99; !fits(control) && stretch >= kNarrowestStretch; --stretch) {
        font.setStretch(stretch);
        control->setFont(font);
    }
    for (double size = font.pointSizeF() - kPointStep; !fits(control) && size >= kSmallestPointSize;
         size -= kPointStep) {
        font.setPointSizeF(size);
        control->setFont(font);
    }
}
} // namespace

void fitCaptions(QWidget* window) {
    for (QWidget* control : window->findChildren<QWidget*>())
        if (hasCaption(control))
            fitCaption(control);
}

} // namespace umbrakit
