#include "platform/accessible_frame.h"

#include <QAccessibleWidget>

#include "platform/accessible_names.h"
#include "platform/classic_frame.h"

namespace umbrakit {

namespace {

class AccessibleFrame : public QAccessibleWidget {
  public:
    explicit AccessibleFrame(ClassicFrame* frame)
        : QAccessibleWidget(frame, QAccessible::Grouping) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return captionWithoutAccessKey(frame()->title());
        return QAccessibleWidget::text(kind);
    }

    // The caption is the group's name, not one of its controls.
    int childCount() const override { return int(controls().size()); }
    QAccessibleInterface* child(int index) const override {
        const QList<QWidget*> all = controls();
        return index >= 0 && index < all.size() ? QAccessible::queryAccessibleInterface(all[index])
                                                : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child ? int(controls().indexOf(child->object())) : -1;
    }

  private:
    ClassicFrame* frame() const { return static_cast<ClassicFrame*>(widget()); }

    QList<QWidget*> controls() const {
        QList<QWidget*> found;
        for (QWidget* child : frame()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child != frame()->captionLabel() && !child->isWindow())
                found << child;
        }
        return found;
    }
};

QAccessibleInterface* frameAsGroup(const QString& className, QObject* object) {
    if (className != QLatin1String(ClassicFrame::staticMetaObject.className()))
        return nullptr;
    return new AccessibleFrame(static_cast<ClassicFrame*>(object));
}

} // namespace

void exposeClassicFramesAsGroups() {
    static const bool installed = (QAccessible::installFactory(frameAsGroup), true);
    (void)installed;
}

} // namespace umbrakit
