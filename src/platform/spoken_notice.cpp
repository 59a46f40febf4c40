#include "platform/spoken_notice.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>

namespace umbrakit {

namespace {

constexpr int kLongestWaitForWindowMs = 1000;

QAccessibleInterface* noticeAsNotification(const QString& className, QObject* object) {
    if (className != QLatin1String(SpokenNotice::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Notification);
}

} // namespace

SpokenNotice::SpokenNotice(QWidget* parent) : QWidget(parent) {
    static const bool installed = (QAccessible::installFactory(noticeAsNotification), true);
    (void)installed;
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
    hide();
    fallback_.setSingleShot(true);
    fallback_.setInterval(kLongestWaitForWindowMs);
    connect(&fallback_, &QTimer::timeout, this, &SpokenNotice::showPending);
}

void SpokenNotice::give(const QString& text) {
    setAccessibleName(text);
    pending_ = true;
    window()->removeEventFilter(this);
    if (window()->isActiveWindow()) {
        showPending();
        return;
    }
    window()->installEventFilter(this);
    fallback_.start();
}

// The window's activation first gives the focus back inside it; the notice comes after that.
bool SpokenNotice::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && watched == window())
        QTimer::singleShot(0, this, &SpokenNotice::showPending);
    return QWidget::eventFilter(watched, event);
}

// Shown and hidden again at once: the screen reader has heard it, and a notice that stayed
// shown would be read a second time beside the text it repeats.
void SpokenNotice::showPending() {
    if (!pending_)
        return;
    pending_ = false;
    fallback_.stop();
    window()->removeEventFilter(this);
    show();
    hide();
}

} // namespace umbrakit
