#include "support/test_app.h"

#include <QFile>

#include "platform/status_bar.h"

namespace umbrakit {

QByteArray TestApp::bytesOf(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestApp::write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(bytes);
}

QString TestApp::status() const {
    return form->StatusBar1->SimpleText();
}

} // namespace umbrakit
