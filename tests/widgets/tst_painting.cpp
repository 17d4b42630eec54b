#include "../monkey/subjects.h"
#include "gestures.h"
#include "probes.h"

#include <nocturne/CheckBox>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/GradientTool>
#include <nocturne/RoundProgressBar>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>

#include <QtWidgets/QProxyStyle>

#include <functional>
#include <memory>

// What widgets paint, pixel by pixel.

namespace {

/// Paints blue handles and nothing else. The contents of a line edit end two units above its lower
/// edge.
class BareStyle : public QProxyStyle
{
public:
    BareStyle()
        : QProxyStyle("fusion")
    {}
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override
    {
        return element == SE_LineEditContents
                   ? option->rect.adjusted(1, 1, -1, -2)
                   : QProxyStyle::subElementRect(element, option, widget);
    }
    void drawPrimitive(PrimitiveElement, const QStyleOption *, QPainter *,
                       const QWidget *) const override
    {}
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        if (option->subControls & SC_SliderHandle)
            painter->fillRect(subControlRect(control, option, SC_SliderHandle, widget), Qt::blue);
    }
};

using Setting = std::function<void(QWidget *, const QString &)>;

/// What is said of a widget besides its properties.
const QHash<QString, Setting> settings = {
    {"tabs",
     [](QWidget *widget, const QString &names) {
         for (const QString &name : names.split(',')) {
             if (auto *bar = qobject_cast<TabBar *>(widget))
                 bar->addTab(name);
             else // and a page that covers nothing of what is painted
                 static_cast<TabWidget *>(widget)->addTab(new QWidget, name);
         }
         widget->ensurePolished();
     }},
    {"checkState",
     [](QWidget *widget, const QString &state) {
         static_cast<CheckBox *>(widget)->setCheckState(Qt::CheckState(state.toInt()));
     }},
    {"ramp",
     [](QWidget *widget, const QString &ends) {
         static_cast<GradientTool *>(widget)->setRamp(
             {{0, QColor(ends.section(',', 0, 0))}, {1, QColor(ends.section(',', 1))}});
     }},
    // That of a ring without texts.
    {"base", [](QWidget *widget, const QString &color) {
         static_cast<RoundProgressBar *>(widget)->setTitle({}, QFont(), QFont(), 0, false);
         widget->setPalette(QPalette({}, {}, {}, {}, {}, Qt::black, QColor(color)));
     }}};

} // namespace

class TestPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(m_theme.style());
        // The colors are the theme's, not those of the application.
        QApplication::setPalette(QPalette(Qt::red, Qt::green));
    }

    void paints_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("probes");
        for (const QString &paragraph : TestSupport::paragraphsOf("painting.txt")) {
            const QStringList parts = paragraph.split(" => ");
            QTest::newRow(qPrintable(parts[0])) << parts[0].split(' ') << QStringList(parts.mid(1));
        }
    }

    /// At one and two device pixels per unit. Enabled and disabled look the same if nothing else is
    /// said.
    void paints()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, probes);
        const auto subject =
            std::find_if(subjects().begin(), subjects().end(),
                         [name = words.takeFirst()](const auto &s) { return name == s.name; });
        QVERIFY(subject != subjects().end());
        const std::unique_ptr<QWidget> widget(subject->create());
        if (widget->inherits("LineEdit") || widget->inherits("QSlider"))
            widget->setStyle(&m_bareStyle);
        const QStringList size = words.takeFirst().split('x');
        widget->resize(size[0].toInt(), size[1].toInt());
        for (const QString &word : words) {
            const QString name = word.section('=', 0, 0);
            const QString value = word.section('=', 1);
            if (settings.contains(name))
                settings[name](widget.get(), value);
            else
                QVERIFY(widget->setProperty(name.toLatin1(), value));
        }
        const bool isSaid = !words.filter("enabled=").isEmpty();
        for (bool changed : isSaid ? QVector<bool>{false} : QVector<bool>{false, true}) {
            widget->setEnabled(widget->isEnabled() != changed);
            for (int i = 0; i < probes.size(); ++i)
                TestSupport::compareProbes(TestSupport::render(*widget, i + 1), probes[i]);
        }
    }

private:
    DarkUX m_theme;
    BareStyle m_bareStyle;
};

NOCTURNE_TEST_MAIN(TestPainting)

#include "tst_painting.moc"
