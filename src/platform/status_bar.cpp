#include "platform/status_bar.h"

#include <QLabel>

namespace umbrakit {

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent), text_(new QLabel(this)) {
    text_->setObjectName("SimpleText");
    text_->setAccessibleName("Status");
    text_->setTextFormat(Qt::PlainText);
    setSizeGripEnabled(true);
    addWidget(text_, 1);
}

QString StatusBar::SimpleText() const {
    return text_->text();
}

void StatusBar::setSimpleText(const QString& text) {
    text_->setText(text);
    text_->setAccessibleDescription(text);
}

} // namespace umbrakit
