#include "testsupport.h"

#include <nocturne/DarkUX>
#include <nocturne/LetterBoxWidget>
#include <nocturne/Splitter>
#include <nocturne/TabWidget>

#include <QtCore/QBuffer>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtGui/QIcon>
#include <QtTest/QSignalSpy>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <memory>

namespace {

const QString pluginDirectory = NOCTURNE_BUILD_DIR "/plugins/designer";

/// Values of the type of \a property that may differ from \a value.
QVariantList othersThan(const QVariant &value, const QMetaProperty &property)
{
    if (property.isEnumType())
        return {property.enumerator().value(1), property.enumerator().value(2)};
    switch (value.userType()) {
    case QMetaType::Bool:
        return {!value.toBool()};
    case QMetaType::QColor:
        return {QColor(1, 2, 3)};
    case QMetaType::QString:
    case QMetaType::QKeySequence:
        return {QStringLiteral("F4")};
    default:
        return {value.toInt() + 1, value.toInt() - 1};
    }
}

/// \a value as a form writes it.
QString written(const QVariant &value, const QMetaProperty &property)
{
    static const QHash<int, QString> tags = {{QMetaType::QString, "string"},
                                             {QMetaType::QKeySequence, "string"},
                                             {QMetaType::Bool, "bool"},
                                             {QMetaType::Double, "double"},
                                             {QMetaType::UInt, "UInt"}};
    const QMetaEnum keys = property.enumerator();
    if (property.isFlagType())
        return "<set>" + QString(keys.valueToKeys(value.toInt())) + "</set>";
    if (property.isEnumType())
        return "<enum>" + QString(keys.valueToKey(value.toInt())) + "</enum>";
    if (value.userType() == QMetaType::QColor)
        return QString("<color><red>%1</red><green>%2</green><blue>%3</blue></color>")
            .arg(value.value<QColor>().red())
            .arg(value.value<QColor>().green())
            .arg(value.value<QColor>().blue());
    const QString tag = tags.value(value.userType(), "number");
    return QString("<%1>%2</%1>").arg(tag, value.toString());
}

/// A widget of a form, named after its class unless it has a \a name.
QString widgetOf(const QString &type, const QString &contents, const QString &name = {})
{
    return QString("<widget class=\"%1\" name=\"%2\">%3</widget>")
        .arg(type, name.isEmpty() ? type : name, contents);
}

} // namespace

/// What Designer offers, and what becomes of a form in a program.
class TestDesigner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPluginLoader plugin(pluginDirectory + "/libnocturnedesigner.so");
        auto *collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
        QVERIFY2(collection, qPrintable(plugin.errorString()));
        m_widgets = collection->customWidgets();
        QCOMPARE(m_widgets.size(), 39);
        m_loader.addPluginPath(pluginDirectory);
    }

    /// Must come first: afterwards there is a theme.
    void makesTheThemeThatItNeeds()
    {
        QVERIFY(!DarkUX::getInstancePtr());
        delete m_widgets.first()->createWidget(nullptr);
        const DarkUX *theme = DarkUX::getInstancePtr();
        QVERIFY(theme);
        delete m_widgets.last()->createWidget(nullptr);
        QCOMPARE(DarkUX::getInstancePtr(), theme);
    }

    void eachIsIntroducedAndLoadedWithItsProperties()
    {
        QMap<QPair<QByteArray, QByteArray>, QVariant> expected; // by class and property
        QString form;
        for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
            const QByteArray name = widget->name().toLatin1();
            QCOMPARE(widget->group(), QStringLiteral("Nocturne"));
            QCOMPARE(widget->includeFile(), "<nocturne/" + widget->name() + '>');
            QVERIFY2(!widget->icon().pixmap(16).isNull(), name);
            QVERIFY2(widget->toolTip().endsWith('.') && !widget->toolTip().contains('\n'), name);
            QVERIFY2(widget->whatsThis().startsWith(widget->toolTip()), name);

            const std::unique_ptr<QWidget> sample(widget->createWidget(nullptr));
            const QMetaObject *type = sample->metaObject();
            QCOMPARE(type->className(), name.constData());
            QString settings;
            for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
                const QMetaProperty property = type->property(i);
                if (!property.isDesignable())
                    continue;
                const QByteArray what = name + '.' + property.name();
                const QVariant initial = property.read(sample.get());
                std::unique_ptr<QSignalSpy> spy;
                if (property.hasNotifySignal())
                    spy = std::make_unique<QSignalSpy>(sample.get(), property.notifySignal());
                for (const QVariant &other : othersThan(initial, property)) {
                    if (property.read(sample.get()) == initial)
                        property.write(sample.get(), other);
                }
                const QVariant changed = property.read(sample.get());
                QVERIFY2(changed != initial, what);
                if (property.isResettable()) {
                    property.reset(sample.get());
                    QVERIFY2(property.read(sample.get()) == initial, what);
                }
                QVERIFY2(!spy || !spy->isEmpty(), what);
                expected[qMakePair(name, QByteArray(property.name()))] = changed;
                settings += QString("<property name=\"%1\">").arg(property.name())
                            + written(changed, property) + "</property>";
            }
            form += widgetOf(name, settings);
        }
        QVERIFY(expected.size() > 40);

        const std::unique_ptr<QWidget> loaded = load(form);
        QVERIFY2(loaded, qPrintable(m_loader.errorString()));
        for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
            const auto *made = loaded->findChild<QWidget *>(widget->name());
            QVERIFY2(made && made->metaObject()->className() == widget->name(),
                     qPrintable(widget->name()));
        }
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            const auto *made = loaded->findChild<QWidget *>(it.key().first);
            QVERIFY2(made->property(it.key().second) == *it,
                     it.key().first + '.' + it.key().second);
        }
        QVERIFY(!loaded->grab().isNull());
    }

    void containersTakeTheirChildren()
    {
        QString form;
        QStringList containers;
        for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
            if (!widget->isContainer())
                continue;
            const QString name = widget->name();
            const QString title = "<attribute name=\"title\"><string>T</string></attribute>";
            containers << name;
            QString pages;
            for (const char *page : {"first", "second"}) {
                if (name != "LetterBoxWidget" || pages.isEmpty())
                    pages += widgetOf("CheckBox", name == "TabWidget" ? title : "", name + page);
            }
            form += widgetOf(name, pages);
        }
        QCOMPARE(containers, QStringList({"Frame", "GroupBox", "LetterBoxWidget", "Splitter",
                                          "TabWidget", "Widget"}));
        const std::unique_ptr<QWidget> loaded = load(form);
        QVERIFY2(loaded, qPrintable(m_loader.errorString()));
        for (const QString &container : qAsConst(containers)) {
            const auto *parent = loaded->findChild<QWidget *>(container);
            QVERIFY2(parent && parent->findChild<QWidget *>(container + "first"),
                     qPrintable(container));
        }
        const auto *tabs = loaded->findChild<TabWidget *>();
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(1), QStringLiteral("T"));
        QCOMPARE(loaded->findChild<Splitter *>()->count(), 2);
        QCOMPARE(loaded->findChild<LetterBoxWidget *>()->widget()->objectName(),
                 QStringLiteral("LetterBoxWidgetfirst"));
    }

private:
    std::unique_ptr<QWidget> load(const QString &widgets)
    {
        QByteArray ui = "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
                        "name=\"Form\">"
                        + widgets.toUtf8()
                        + "</widget>"
                          "<customwidgets><customwidget><class>LetterBoxWidget</class>"
                          "<extends>QFrame</extends><addpagemethod>setWidget</addpagemethod>"
                          "</customwidget></customwidgets></ui>";
        QBuffer file(&ui);
        return std::unique_ptr<QWidget>(m_loader.load(&file));
    }

    QUiLoader m_loader;
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

NOCTURNE_TEST_MAIN(TestDesigner)

#include "tst_designer.moc"
