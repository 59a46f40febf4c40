#include "platform/combo_list.h"

#include <QLineEdit>
#include <QSignalBlocker>

namespace umbrakit {

ComboList::ComboList(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::activated, this, [this] { emit Click(); });
}

// QComboBox selects row 0 by itself when the first row arrives, and a neighbour when the
// selected row goes; both would be changes nobody asked for.
void ComboList::keepSelection(int row, const QString& text) {
    const QSignalBlocker blocker(this);
    setCurrentIndex(row);
    if (isEditable())
        setEditText(text);
}

void ComboList::AddItem(const QString& text) {
    const int row = currentIndex();
    const QString typed = currentText();
    {
        const QSignalBlocker blocker(this);
        addItem(text);
    }
    keepSelection(row, typed);
}

void ComboList::Clear() {
    const QSignalBlocker blocker(this);
    clear();
    setCurrentIndex(-1);
}

void ComboList::RemoveItem(int row) {
    if (row < 0 || row >= count())
        return;
    const int selected = currentIndex();
    const QString typed = currentText();
    {
        const QSignalBlocker blocker(this);
        removeItem(row);
    }
    keepSelection(selected == row ? -1 : (selected > row ? selected - 1 : selected), typed);
}

void ComboList::setListIndex(int row) {
    {
        const QSignalBlocker blocker(this);
        setCurrentIndex(row >= 0 && row < count() ? row : -1);
    }
    emit Click();
}

QString ComboList::List(int row) const {
    return row >= 0 && row < count() ? itemText(row) : QString();
}

void ComboList::setText(const QString& text) {
    const QSignalBlocker blocker(this);
    if (isEditable())
        setEditText(text);
    else
        setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace umbrakit
