// A screen reader speaks a control by its caption, without the access key's "&".
#pragma once

#include <QString>

class QWidget;

namespace umbrakit {

QString captionWithoutAccessKey(QString caption);

// Gives a button, check box, frame or label the accessible name of its caption.
void nameForScreenReaders(QWidget* widget);

} // namespace umbrakit
