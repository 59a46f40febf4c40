// A notice that screen readers speak once, at the moment it is given, without taking the
// focus. Orca speaks a change of name only for the focused object, but it speaks an object of
// the notification role whenever that object becomes shown: the notice is such an object,
// hidden, with no size and nothing to draw, shown for an instant each time it is given.
#pragma once

#include <QTimer>
#include <QWidget>

namespace umbrakit {

class SpokenNotice : public QWidget {
    Q_OBJECT
  public:
    explicit SpokenNotice(QWidget* parent);

    // Spoken as soon as this window is active again: the outcome of a command often comes
    // as a modal dialog closes, and the window system then gives the focus back, which the
    // screen reader speaks too and which would cut a notice given before it short. If the
    // window stays inactive for a second (the user went elsewhere), it is spoken all the same.
    // A notice given while another waits takes its place.
    void give(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showPending();

    bool pending_ = false;
    QTimer fallback_;
};

} // namespace umbrakit
