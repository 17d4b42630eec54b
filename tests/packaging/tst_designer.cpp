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

/// The text that the loader makes \a value of again.
QString written(const QVariant &value, const QMetaProperty &property)
{
    // Also of an enumeration that is no set of flags.
    return property.isEnumType() ? QString(property.enumerator().valueToKeys(value.toInt()))
                                 : value.toString();
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

    /// One of each in a form, with another value for every property and with children where it
    /// takes any.
    void formWithOneOfEach()
    {
        std::vector<std::unique_ptr<QWidget>> samples;
        QStringList containers;
        QString form;
        for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
            const QString name = widget->name();
            QCOMPARE(widget->group(), QStringLiteral("Nocturne"));
            QCOMPARE(widget->includeFile(), "<nocturne/" + name + '>');
            QVERIFY2(!widget->icon().pixmap(16).isNull(), qPrintable(name));
            QVERIFY2(widget->toolTip().endsWith('.') && !widget->toolTip().contains('\n'),
                     qPrintable(name));
            QVERIFY2(widget->whatsThis().startsWith(widget->toolTip()), qPrintable(name));
            samples.emplace_back(widget->createWidget(nullptr));
            QCOMPARE(samples.back()->metaObject()->className(), qPrintable(name));
            QString contents;
            change(samples.back().get(), contents);
            if (QTest::currentTestFailed())
                return;
            if (widget->isContainer()) {
                containers << name;
                const QString title = "<attribute name=\"title\"><string>T</string></attribute>";
                contents += widgetOf("CheckBox", name == "TabWidget" ? title : "", name + "1");
                if (name != "LetterBoxWidget")
                    contents += widgetOf("CheckBox", "", name + "2");
            }
            form += widgetOf(name, contents);
        }
        QCOMPARE(containers.join(' '), "Frame GroupBox LetterBoxWidget Splitter TabWidget Widget");

        QVERIFY(form.count("<property ") > 40);

        const std::unique_ptr<QWidget> loaded = load(form);
        QVERIFY2(loaded, qPrintable(m_loader.errorString()));
        for (const auto &sample : samples) {
            const QMetaObject *type = sample->metaObject();
            const auto *made = loaded->findChild<QWidget *>(type->className());
            QVERIFY2(made && made->metaObject()->className() == QString(type->className()),
                     type->className());
            for (const QMetaProperty &property : designable(type))
                QVERIFY2(property.read(made) == property.read(sample.get()), property.name());
        }
        for (const QString &container : qAsConst(containers)) {
            const auto *parent = loaded->findChild<QWidget *>(container);
            QVERIFY2(parent->findChild<QWidget *>(container + '1'), qPrintable(container));
        }
        const auto *tabs = loaded->findChild<TabWidget *>();
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(0), QStringLiteral("T"));
        QCOMPARE(loaded->findChild<Splitter *>()->count(), 2);
        QVERIFY(loaded->findChild<LetterBoxWidget *>()->widget());
        QVERIFY(!loaded->grab().isNull());
    }

private:
    /// The properties of its own that a form may set.
    static QVector<QMetaProperty> designable(const QMetaObject *type)
    {
        QVector<QMetaProperty> properties;
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
            if (type->property(i).isDesignable())
                properties << type->property(i);
        }
        return properties;
    }

    /// Gives every property of \a sample another value and adds it to what a form says.
    static void change(QWidget *sample, QString &form)
    {
        for (const QMetaProperty &property : designable(sample->metaObject())) {
            const QByteArray what =
                sample->metaObject()->className() + QByteArray(".") + property.name();
            const QVariant initial = property.read(sample);
            const QMetaEnum keys = property.enumerator();
            // A value that is not of the property's type is refused or converted.
            QVariantList others{"F4", QColor(1, 2, 3), initial.toInt() + 1, initial.toInt() - 1};
            if (property.isEnumType())
                others = {keys.value(1), keys.value(2)};
            std::unique_ptr<QSignalSpy> spy;
            if (property.hasNotifySignal())
                spy = std::make_unique<QSignalSpy>(sample, property.notifySignal());
            for (const QVariant &other : qAsConst(others)) {
                if (property.read(sample) == initial)
                    property.write(sample, other);
            }
            const QVariant changed = property.read(sample);
            QVERIFY2(changed != initial, what);
            if (property.isResettable()) {
                property.reset(sample);
                QVERIFY2(property.read(sample) == initial, what);
                property.write(sample, changed);
            }
            QVERIFY2(!spy || !spy->isEmpty(), what);
            form += QString("<property name=\"%1\"><string>%2</string></property>")
                        .arg(property.name(), written(changed, property));
        }
    }

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
