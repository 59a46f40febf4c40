// A frame whose caption sits on its top border line, so that controls placed 14 pixels below
// the frame's top stand inside it, clear of the caption. Screen readers meet it as a group.
#pragma once

#include <QFrame>

class QLabel;

namespace umbrakit {

class ClassicFrame : public QFrame {
    Q_OBJECT
  public:
    ClassicFrame(const QString& caption, QWidget* parent);

    QString title() const;
    const QWidget* captionLabel() const;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QLabel* caption_;
};

} // namespace umbrakit
