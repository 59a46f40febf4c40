#include "platform/classic_keys.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

namespace umbrakit {

namespace {

// Qt counts an access key that a control and the menu bar both claim as ambiguous: the control
// then only takes the focus and the menu bar gets every other press. This filter, on the menu
// bar and the controls, gives such a key to the control alone, as a click.
class ClassicKeys : public QObject {
  public:
    explicit ClassicKeys(QMainWindow& window) : QObject(&window), window_(window) {
        window.menuBar()->installEventFilter(this);
        for (QAbstractButton* control : controls()) {
            if (!QKeySequence::mnemonic(control->text()).isEmpty())
                control->installEventFilter(this);
        }
        auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), &window);
        connect(f10, &QShortcut::activated, this, &ClassicKeys::tapAlt);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Shortcut)
            return false;
        const auto* shortcut = static_cast<QShortcutEvent*>(event);
        if (watched != window_.menuBar() && !shortcut->isAmbiguous())
            return false;
        QAbstractButton* control = onlyControlWith(shortcut->key());
        if (!control)
            return false; // a key two controls claim stays ambiguous, as Qt has it
        if (!control->isDown())
            control->animateClick();
        return true;
    }

  private:
    QList<QAbstractButton*> controls() const {
        QList<QAbstractButton*> found;
        for (QAbstractButton* button : window_.findChildren<QAbstractButton*>()) {
            if (!window_.menuBar()->isAncestorOf(button))
                found << button;
        }
        return found;
    }

    QAbstractButton* onlyControlWith(const QKeySequence& key) const {
        QAbstractButton* only = nullptr;
        for (QAbstractButton* control : controls()) {
            if (!control->isEnabled() || !control->isVisible() ||
                QKeySequence::mnemonic(control->text()) != key)
                continue;
            if (only)
                return nullptr;
            only = control;
        }
        return only;
    }

    // The menu bar watches its window for a press and release of Alt alone; F10 hands it one.
    // A key event of Alt reports the Alt modifier as it was before the key: not yet held.
    void tapAlt() {
        QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
        QCoreApplication::sendEvent(&window_, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
        QCoreApplication::sendEvent(&window_, &release);
    }

    QMainWindow& window_;
};

} // namespace

void useClassicKeys(QMainWindow& window) {
    new ClassicKeys(window);
}

} // namespace umbrakit
