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
    const QString text = value.toString();
    if (property.isFlagType())
        return "<set>" + QString(property.enumerator().valueToKeys(value.toInt())) + "</set>";
    if (property.isEnumType())
        return "<enum>" + QString(property.enumerator().valueToKey(value.toInt())) + "</enum>";
    switch (value.userType()) {
    case QMetaType::QColor: {
        const QString color = "<color><red>%1</red><green>%2</green><blue>%3</blue></color>";
        const auto c = value.value<QColor>();
        return color.arg(c.red()).arg(c.green()).arg(c.blue());
    }
    case QMetaType::QString:
    case QMetaType::QKeySequence:
        return "<string>" + text + "</string>";
    case QMetaType::Bool:
        return "<bool>" + text + "</bool>";
    case QMetaType::Double:
        return "<double>" + text + "</double>";
    case QMetaType::UInt:
        return "<UInt>" + text + "</UInt>";
    default:
        return "<number>" + text + "</number>";
    }
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
        int properties = 0;
        QString form;
        for (QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
            const QByteArray name = widget->name().toLatin1();
            QCOMPARE(widget->group(), QStringLiteral("Nocturne"));
            QCOMPARE(widget->includeFile(), "<nocturne/" + widget->name() + '>');
            QVERIFY2(!widget->icon().pixmap(16).isNull(), name);
            QVERIFY2(widget->toolTip().endsWith('.') && !widget->toolTip().contains('\n'), name);
            QVERIFY2(widget->whatsThis().startsWith(widget->toolTip()), name);

            const std::unique_ptr<QWidget> sample(widget->createWidget(nullptr));
            QCOMPARE(sample->metaObject()->className(), name.constData());
            QMap<QByteArray, QVariant> expected;
            form += "<widget class=\"" + name + "\" name=\"" + name + "\">";
            for (int i = sample->metaObject()->propertyOffset();
                 i < sample->metaObject()->propertyCount(); ++i) {
                const QMetaProperty property = sample->metaObject()->property(i);
                if (!property.isDesignable())
                    continue;
                const QVariant initial = property.read(sample.get());
                std::unique_ptr<QSignalSpy> spy;
                if (property.hasNotifySignal())
                    spy = std::make_unique<QSignalSpy>(sample.get(), property.notifySignal());
                for (const QVariant &other : othersThan(initial, property)) {
                    if (property.read(sample.get()) == initial)
                        property.write(sample.get(), other);
                }
                const QVariant changed = property.read(sample.get());
                const QByteArray what = name + '.' + property.name();
                QVERIFY2(changed != initial, what);
                if (property.isResettable()) {
                    property.reset(sample.get());
                    QVERIFY2(property.read(sample.get()) == initial, what);
                    property.write(sample.get(), changed);
                }
                QVERIFY2(!spy || !spy->isEmpty(), what);
                expected[property.name()] = changed;
                form += QString("<property name=\"%1\">").arg(property.name())
                        + written(changed, property) + "</property>";
            }
            form += "</widget>";
            m_expected[name] = expected;
            properties += expected.size();
        }
        QVERIFY(properties > 40);

        const std::unique_ptr<QWidget> loaded = load(form);
        QVERIFY2(loaded, qPrintable(m_loader.errorString()));
        for (auto it = m_expected.cbegin(); it != m_expected.cend(); ++it) {
            const auto *widget = loaded->findChild<QWidget *>(it.key());
            QVERIFY2(widget && widget->metaObject()->className() == it.key(), it.key());
            for (auto value = it->cbegin(); value != it->cend(); ++value)
                QVERIFY2(widget->property(value.key()) == *value, it.key() + '.' + value.key());
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
            containers << widget->name();
            form += "<widget class=\"" + widget->name() + "\" name=\"" + widget->name() + "\">";
            for (const char *page : {"first", "second"}) {
                form +=
                    QString("<widget class=\"CheckBox\" name=\"%1%2\">%3</widget>")
                        .arg(
                            widget->name(), page,
                            QString(widget->name() == "TabWidget"
                                        ? "<attribute name=\"title\"><string>T</string></attribute>"
                                        : ""));
                if (widget->name() == "LetterBoxWidget")
                    break;
            }
            form += "</widget>";
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
    QMap<QByteArray, QMap<QByteArray, QVariant>> m_expected;
};

NOCTURNE_TEST_MAIN(TestDesigner)

#include "tst_designer.moc"
