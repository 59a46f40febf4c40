#include "gui/main_window/patch_grid.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <algorithm>
#include <functional>

#include "platform/placement.h"

namespace umbrakit {

namespace {
// The grid's own top in the window; its children are placed by their window twips less this.
constexpr int kTop = 885;

QString twoDigits(int number) {
    return QString::number(number).rightJustified(2, '0');
}

// A patch's box hands its click, by mouse, Space or a drag, to the grid instead of switching
// itself.
class PatchBox : public QCheckBox {
  public:
    PatchBox(std::function<void()> click, QWidget* parent)
        : QCheckBox(parent), click_(std::move(click)) {}

  protected:
    void nextCheckState() override { click_(); }

  private:
    std::function<void()> click_;
};
} // namespace

PatchGrid::PatchGrid(QWidget* parent) : QWidget(parent) {
    setObjectName("patchGrid");
    setGeometry(twipsRect(0, kTop, 4965, 5850 - kTop));
    // Column labels "00" to "15" along the top are Label1 to Label16; row labels count upward
    // from "00" at the bottom, Label32, to "15" at the top, Label17.
    for (int c = 0; c < kGridSide; ++c) {
        const QByteArray name = "Label" + QByteArray::number(c + 1);
        axisLabels_[std::size_t(c)] = place(new QLabel(twoDigits(c), this), name.constData(),
                                            225 + 300 * c, 885 - kTop, 240, 240);
    }
    for (int r = 0; r < kGridSide; ++r) {
        const QByteArray name = "Label" + QByteArray::number(32 - r);
        axisLabels_[std::size_t(31 - r)] = place(new QLabel(twoDigits(r), this), name.constData(),
                                                 0, 5610 - 300 * r - kTop, 240, 240);
    }
    for (QLabel* label : axisLabels_) {
        label->setAlignment(Qt::AlignCenter);
        label->setFocusPolicy(Qt::NoFocus);
    }
    for (int i = 0; i < kPatchCount; ++i) {
        const QByteArray name = "CheckBoxArray_" + QByteArray::number(i);
        QCheckBox* box =
            place(new PatchBox([this, i] { clickPatch(i); }, this), name.constData(),
                  225 + 300 * patchColumn(i), 5610 - 300 * patchRow(i) - kTop, 240, 240);
        box->setEnabled(false);
        box->setAccessibleName(
            QString("Patch column %1, row %2").arg(patchColumn(i)).arg(patchRow(i)));
        box->setFocusPolicy(i == focusedPatch_ ? Qt::StrongFocus : Qt::ClickFocus);
        box->installEventFilter(this);
        // The program may still set a box itself, as on a greyed one; the selection follows.
        connect(box, &QCheckBox::toggled, this,
                [this, i](bool on) { selection_.setTicked(i, on); });
        patches_[std::size_t(i)] = box;
    }
}

void PatchGrid::showWorld(WorldSize world) {
    const bool focusInGrid = patch(focusedPatch_)->hasFocus();
    selection_.showWorld(world);
    for (int index = 0; index < kPatchCount; ++index) {
        if (selection_.isEnabled(index))
            patches_[std::size_t(index)]->setEnabled(true);
    }
    // Before the old patch is greyed, or Qt would hand the focus out of the grid.
    moveTabStop(nearestPatchInWorld(focusedPatch_, world), focusInGrid);
    for (int index = 0; index < kPatchCount; ++index) {
        if (!selection_.isEnabled(index))
            patches_[std::size_t(index)]->setEnabled(false);
    }
    showTicks();
}

void PatchGrid::selectAll(WorldSize world) {
    selection_.selectAll(world);
    showTicks();
}

void PatchGrid::clear() {
    selection_.clear();
    showTicks();
}

void PatchGrid::clickPatch(int patch) {
    selection_.click(patch);
    patches_[std::size_t(patch)]->setChecked(selection_.isTicked(patch));
}

void PatchGrid::showTicks() {
    for (int index = 0; index < kPatchCount; ++index)
        patches_[std::size_t(index)]->setChecked(selection_.isTicked(index));
}

int PatchGrid::indexOf(const QObject* object) const {
    const auto found = std::find(patches_.begin(), patches_.end(), object);
    return found == patches_.end() ? -1 : int(found - patches_.begin());
}

bool PatchGrid::eventFilter(QObject* watched, QEvent* event) {
    const int index = indexOf(watched);
    if (index < 0)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return moveFocusByKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        followFocus(index, event->type() == QEvent::FocusIn);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return followDrag(index, *static_cast<QMouseEvent*>(event));
    default:
        return false;
    }
}

} // namespace umbrakit
