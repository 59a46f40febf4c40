#include "platform/status_bar.h"

#include <QLabel>

#include "platform/spoken_notice.h"

namespace umbrakit {

// The label has no accessible name of its own: screen readers then take the text it shows as
// its name. The notice is no item of the bar's layout, so the line looks as it always did.
StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent), text_(new QLabel(this)), notice_(new SpokenNotice(this)) {
    text_->setObjectName("SimpleText");
    text_->setTextFormat(Qt::PlainText);
    notice_->setObjectName("SpokenStatus");
    setSizeGripEnabled(true);
    addWidget(text_, 1);
}

QString StatusBar::SimpleText() const {
    return text_->text();
}

void StatusBar::setSimpleText(const QString& text) {
    text_->setText(text);
}

void StatusBar::announceSimpleText() {
    notice_->give(text_->text());
}

} // namespace umbrakit
