// A status bar in simple style: one text across its whole width. Screen readers find the text
// in the line when asked for the status bar; a text that reports an outcome is also spoken
// once, as it appears, by a notice the line owns.
#pragma once

#include <QStatusBar>

class QLabel;

namespace umbrakit {

class SpokenNotice;

class StatusBar : public QStatusBar {
    Q_OBJECT
  public:
    explicit StatusBar(QWidget* parent = nullptr);

    QString SimpleText() const;
    void setSimpleText(const QString& text);
    // Has screen readers speak the text that stands, without moving the focus.
    void announceSimpleText();

  private:
    QLabel* text_;
    SpokenNotice* notice_;
};

} // namespace umbrakit
