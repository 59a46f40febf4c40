// A combo box that behaves as the program's handlers expect of a list: setting ListIndex
// raises Click every time, also for the row already chosen; the user choosing any row raises
// Click; AddItem, Clear and RemoveItem raise nothing and never select a row by themselves.
#pragma once

#include <QComboBox>

namespace umbrakit {

class ComboList : public QComboBox {
    Q_OBJECT
public:
    explicit ComboList(QWidget* parent = nullptr);

    void AddItem(const QString& text);
    void Clear();
    void RemoveItem(int row);
    int ListIndex() const { return currentIndex(); }
    void setListIndex(int row);
    QString List(int row) const; // the empty string behind the last row
    int ListCount() const { return count(); }
    QString Text() const { return currentText(); }
    void setText(const QString& text); // for a list that takes typed text

signals:
    void Click();

private:
    void keepSelection(int row, const QString& text);
};

} // namespace umbrakit
