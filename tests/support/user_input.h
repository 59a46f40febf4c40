// The mouse as a user moves it, for the controls the window tests drive.
#pragma once

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace umbrakit {

// Opens the list and clicks the row: one Click, as a user's choice.
inline void chooseRow(QComboBox* combo, int row) {
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(rect.left() + 4, rect.center().y()));
}

// Clicks the box itself rather than the middle of its caption.
inline void clickBox(QCheckBox* box) {
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

} // namespace umbrakit
