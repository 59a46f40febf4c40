// Places and sizes of the windows are kept in twips, 15 to a device-independent pixel;
// Qt's own scaling then keeps the windows right at 150% and 200%.
#pragma once

#include <QRect>

namespace umbrakit {

constexpr int kTwipsPerPixel = 15;

constexpr int twips(int value) { return value / kTwipsPerPixel; }

inline QRect twipsRect(int left, int top, int width, int height) {
    return QRect(twips(left), twips(top), twips(width), twips(height));
}

} // namespace umbrakit
