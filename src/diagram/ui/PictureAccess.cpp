// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/ui/PictureAccess.h"

#include "diagram/ui/picDiagram.h"
#include "kit/AnsiString.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWindow>

#include <vector>

namespace orvane {

namespace {

using diagram::Hit;

// States first, then edges, as in the scene.
int CountOf(const diagram::Scene& scene) { return int(scene.States.size() + scene.Edges.size()); }

Hit HitOf(const diagram::Scene& scene, int index) {
    const auto item = std::size_t(index);
    if (item < scene.States.size())
        return {item, {}};
    return {{}, item - scene.States.size()};
}

int IndexIn(const diagram::Scene& scene, const Hit& hit) {
    if (hit.State)
        return int(*hit.State);
    return hit.Edge ? int(scene.States.size() + *hit.Edge) : -1;
}

// A state or an edge.
class ItemAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    ItemAccess(picDiagram& picture, int index) : picture_(&picture), index_(index) {}

    bool isValid() const override { return picture_ != nullptr && index_ < CountOf(Scene()); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? picture_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return isValid() ? QAccessible::queryAccessibleInterface(picture_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override {
        return isValid() && Own().State ? QAccessible::ListItem : QAccessible::Link;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid())
            return {};
        const Hit own = Own();
        return FromAnsi(own.State ? Scene().States[*own.State].Name : Scene().Edges[*own.Edge].Name);
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect own = picture_->RectOf(Own());
        return {picture_->viewport()->mapToGlobal(own.topLeft()), own.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        state.focusable = true;
        state.selectable = true;
        state.focused = picture_->hasFocus() && picture_->Focused() == Own();
        state.offscreen = !picture_->viewport()->rect().intersects(picture_->RectOf(Own()));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        QAccessibleActionInterface* action = this;
        return type == QAccessible::ActionInterface ? action : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override {
        if (!isValid())
            return;
        picture_->setFocus();
        picture_->Focus(Own());
        if (name == pressAction())
            Q_EMIT picture_->CellsChosen(CellsOf(Scene(), Own()));
    }

  private:
    const diagram::Scene& Scene() const { return picture_->Picture().Shown(); }
    Hit Own() const { return HitOf(Scene(), index_); }

    QPointer<picDiagram> picture_;
    int index_;
};

class PictureAccess : public QAccessibleWidget {
  public:
    explicit PictureAccess(picDiagram& picture)
        : QAccessibleWidget(&picture, QAccessible::List), picture_(picture) {}
    ~PictureAccess() override { Forget(); }
    PictureAccess(const PictureAccess&) = delete;
    PictureAccess& operator=(const PictureAccess&) = delete;

    int childCount() const override { return CountOf(picture_.Picture().Shown()); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        children_.resize(std::max(children_.size(), std::size_t(index) + 1));
        QAccessible::Id& id = children_[std::size_t(index)];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new ItemAccess(picture_, index));
        return QAccessible::accessibleInterface(id);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int index = 0; index < childCount(); ++index) {
            if (this->child(index) == child)
                return index;
        }
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint point = picture_.viewport()->mapFromGlobal(QPoint(x, y));
        return child(IndexIn(picture_.Picture().Shown(), picture_.HitAtViewport(point)));
    }

    QAccessibleInterface* focusChild() const override {
        return picture_.hasFocus() ? child(IndexIn(picture_.Picture().Shown(), picture_.Focused())) : nullptr;
    }

    void Forget() {
        for (const QAccessible::Id id : children_) {
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
        }
        children_.clear();
    }

  private:
    picDiagram& picture_;
    mutable std::vector<QAccessible::Id> children_; // 0 for one that nobody has asked for
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    auto* picture = qobject_cast<picDiagram*>(object);
    return picture == nullptr ? nullptr : new PictureAccess(*picture);
}

} // namespace

void AddPictureAccess() {
    static const bool isAdded = [] {
        QAccessible::installFactory(MakeAccess);
        return true;
    }();
    Q_UNUSED(isAdded)
}

// Nobody listens as long as no reader is there, and then this costs nothing.
void TellPictureChanged(picDiagram& picture) {
    if (!QAccessible::isActive())
        return;
    if (auto* access = dynamic_cast<PictureAccess*>(QAccessible::queryAccessibleInterface(&picture)))
        access->Forget();
    QAccessibleEvent event(&picture, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void TellPictureFocus(picDiagram& picture) {
    if (!QAccessible::isActive() || !picture.hasFocus())
        return;
    QAccessibleEvent event(&picture, QAccessible::Focus);
    event.setChild(IndexIn(picture.Picture().Shown(), picture.Focused()));
    QAccessible::updateAccessibility(&event);
}

} // namespace orvane
