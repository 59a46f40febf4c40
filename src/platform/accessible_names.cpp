#include "platform/accessible_names.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace umbrakit {

QString captionWithoutAccessKey(QString caption) {
    for (int i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&')
            caption.remove(i, 1); // "&&" leaves one "&", which the loop then steps over
    }
    return caption;
}

void nameForScreenReaders(QWidget* widget) {
    QString caption;
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        caption = button->text();
    else if (auto* frame = qobject_cast<QGroupBox*>(widget))
        caption = frame->title();
    else if (auto* label = qobject_cast<QLabel*>(widget))
        caption = label->text();
    if (!caption.isEmpty())
        widget->setAccessibleName(captionWithoutAccessKey(caption));
}

} // namespace umbrakit
