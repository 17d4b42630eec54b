#include "containers.h"

#include <nocturne/LetterBoxWidget>

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionFactory>
#include <QtDesigner/QExtensionManager>

namespace {

/// A letter box as a container with one page, the widget that it holds.
class LetterBoxContainer : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    LetterBoxContainer(LetterBoxWidget *box, QObject *parent)
        : QObject(parent)
        , m_box(box)
    {}

    int count() const override { return m_box->widget() ? 1 : 0; }
    QWidget *widget(int index) const override { return index == 0 ? m_box->widget() : nullptr; }
    int currentIndex() const override { return m_box->widget() ? 0 : -1; }
    void setCurrentIndex(int) override {}
    bool canAddWidget() const override { return !m_box->widget(); }
    void addWidget(QWidget *widget) override { m_box->setWidget(widget); }
    void insertWidget(int, QWidget *widget) override { addWidget(widget); }
    bool canRemove(int) const override { return false; }
    void remove(int) override {}

private:
    LetterBoxWidget *m_box;
};

class ContainerFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    using QExtensionFactory::QExtensionFactory;

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override
    {
        auto *box = qobject_cast<LetterBoxWidget *>(object);
        if (!box || iid != QLatin1String(Q_TYPEID(QDesignerContainerExtension)))
            return nullptr;
        return new LetterBoxContainer(box, parent);
    }
};

} // namespace

void registerContainers(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core ? core->extensionManager() : nullptr;
    if (!manager || manager->findChild<ContainerFactory *>())
        return;
    manager->registerExtensions(new ContainerFactory(manager),
                                QLatin1String(Q_TYPEID(QDesignerContainerExtension)));
}

#include "containers.moc"
