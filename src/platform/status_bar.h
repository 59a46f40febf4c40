// A status bar in simple style: one text across its whole width, which screen readers speak
// as the name of the line and announce at every change.
#pragma once

#include <QStatusBar>

class QLabel;

namespace umbrakit {

class StatusBar : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusBar(QWidget* parent = nullptr);

    QString SimpleText() const;
    void setSimpleText(const QString& text);

private:
    QLabel* text_;
};

} // namespace umbrakit
