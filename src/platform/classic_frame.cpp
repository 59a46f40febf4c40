#include "platform/classic_frame.h"

#include <QLabel>

#include "platform/accessible_frame.h"

namespace umbrakit {

namespace {
constexpr int kBorderTop = 6; // half a caption's height
}

ClassicFrame::ClassicFrame(const QString& caption, QWidget* parent)
    : QFrame(parent), caption_(new QLabel(caption, this)) {
    exposeClassicFramesAsGroups();
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Sunken);
    setAccessibleName(caption);
    caption_->setObjectName("caption");
    caption_->setAutoFillBackground(true); // hides the border line behind the caption
    caption_->setContentsMargins(2, 0, 2, 0);
    caption_->move(6, 0);
    caption_->adjustSize();
}

QString ClassicFrame::title() const {
    return caption_->text();
}

const QWidget* ClassicFrame::captionLabel() const {
    return caption_;
}

void ClassicFrame::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    setFrameRect(QRect(0, kBorderTop, width(), height() - kBorderTop));
    caption_->adjustSize();
}

} // namespace umbrakit
