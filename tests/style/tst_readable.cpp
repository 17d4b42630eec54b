#include <nocturne/CheckBox>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>
#include <nocturne/LivePalette>
#include <nocturne/RangeSlider>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <cmath>
#include <cstdio>
#include <memory>

// Measures contrasts from pixels, by the formula of WCAG 2.1. With --table it prints what it
// measures in both faces as rows for docs/readable.md.

namespace {

/// Something to be seen on a control, a row of data/samples.txt.
struct Sample
{
    QString control;
    QString part;
    QString type;
    QString properties;
    QString toggled;

    QString name() const { return control + ": " + part; }
};

template <typename... W>
QHash<QString, QWidget *(*)(QWidget *parent)> makersOf()
{
    return {{W::staticMetaObject.className(),
             [](QWidget *parent) -> QWidget * { return new W(parent); }}...};
}

/// A control with something in it.
QWidget *makeControl(const QString &type, QWidget *parent)
{
    static const auto makers =
        makersOf<QLabel, QPushButton, QToolButton, QCheckBox, QRadioButton, QLineEdit, QTextEdit,
                 QGroupBox, QComboBox, QSpinBox, QTabBar, QProgressBar, QTableWidget, QMenu,
                 QMdiArea, QDockWidget, QSlider, QDial, QScrollBar, QSizeGrip, RangeSlider,
                 CheckBox>();
    QWidget *control = makers[type](parent);
    if (auto *table = qobject_cast<QTableWidget *>(control)) {
        table->setColumnCount(1);
        table->setRowCount(3);
        table->setAlternatingRowColors(true);
        table->verticalHeader()->setDefaultSectionSize(20);
        for (int row = 0; row < 3; ++row)
            table->setItem(row, 0, new QTableWidgetItem(" "));
        table->setCurrentCell(2, 0, QItemSelectionModel::NoUpdate);
    } else if (auto *menu = qobject_cast<QMenu *>(control)) {
        menu->addAction(" ");
    } else if (auto *bar = qobject_cast<QTabBar *>(control)) {
        for (int i = 0; i < 2; ++i)
            bar->addTab("WWWWW");
    } else if (auto *box = qobject_cast<QComboBox *>(control)) {
        box->addItem(" ");
    } else if (auto *area = qobject_cast<QMdiArea *>(control)) {
        area->resize(220, 120);
        return area->addSubWindow(new QWidget);
    }
    return control;
}

const QVector<Sample> &samples()
{
    static QVector<Sample> rows;
    QFile file(NOCTURNE_SOURCE_DIR "/tests/style/data/samples.txt");
    if (!rows.isEmpty() || !file.open(QIODevice::ReadOnly))
        return rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList cells = line.simplified().split(QRegularExpression(" ?\\| ?"));
        if (cells.size() == 5 && !line.startsWith('#'))
            rows.append({cells[0], cells[1], cells[2], cells[3], cells[4]});
    }
    return rows;
}

QString words(bool on)
{
    return on ? "MWHNE" : QString(5, QChar(QChar::Nbsp));
}

/// Shows the part of a sample that \a name stands for, or hides it.
void toggle(QWidget *widget, const QString &name, bool on)
{
    auto *table = qobject_cast<QTableWidget *>(widget);
    auto *bar = qobject_cast<QTabBar *>(widget);
    auto *box = qobject_cast<QComboBox *>(widget);
    const bool hasWords = name.contains("words");
    const bool isChosen = name.contains("chosen") && (on || hasWords);
    if (name == "focus") {
        on ? widget->setFocus(Qt::TabFocusReason) : widget->clearFocus();
    } else if (name == "all") {
        widget->setProperty(widget->inherits("QLineEdit") ? "text" : "plainText", words(on));
        QMetaObject::invokeMethod(widget, "selectAll");
    } else if (auto *menu = qobject_cast<QMenu *>(widget)) {
        QAction *action = menu->actions().first();
        if (hasWords)
            action->setText(words(on));
        action->setCheckable(name == "checked" || (on && name == "checkable"));
        action->setChecked(on && name == "checked");
        menu->setActiveAction(isChosen ? action : nullptr);
    } else if (name == "header") {
        table->setHorizontalHeaderLabels({words(on)});
    } else if (table && name == "check") {
        table->item(0, 0)->setData(Qt::CheckStateRole, on ? QVariant(Qt::Unchecked) : QVariant());
    } else if (table) {
        table->item(1, 0)->setText(words(on && hasWords)); // on the alternate ground
        table->item(1, 0)->setSelected(isChosen);
    } else if (bar && hasWords) {
        bar->setTabText(0, words(on));
    } else if (box && hasWords) {
        box->setItemText(0, words(on));
    } else {
        const QStringList parts = name.split(QRegularExpression("[=:]"));
        const QByteArray property = parts.first().toLatin1();
        const bool isSwitch = widget->property(property).userType() == QMetaType::Bool;
        widget->setProperty(property, parts.size() > 1 ? QVariant(parts.at(on ? 1 : 2).toInt())
                                      : isSwitch       ? QVariant(on)
                                                       : QVariant(words(on)));
    }
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// The contrast that the clearest twentieth of the pixels reach in which two pictures differ: the
/// edges of smoothed shapes are of any shade.
double contrast(const QImage &with, const QImage &without)
{
    std::vector<double> contrasts;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                contrasts.push_back(contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
        }
    }
    if (contrasts.size() < 10)
        return 1.0;
    std::sort(contrasts.rbegin(), contrasts.rend());
    return contrasts.at(contrasts.size() / 20);
}

/// The least contrasts of a sample over its states and both directions; 0 where it has none.
struct Result
{
    double enabled = 0.0;
    double disabled = 0.0;
};

enum class State { Normal, Hovered, Pressed, Focused, Inactive, Disabled };

/// A window of one control.
class Stage : public QWidget
{
public:
    explicit Stage(const Sample &sample, State state = State::Normal,
                   Qt::LayoutDirection direction = Qt::LeftToRight)
        : m_sample(sample)
        , m_control(makeControl(sample.type, this))
    {
        setFixedSize(220, 120);
        setLayoutDirection(direction);
        for (const QString &setting : sample.properties.split(' ', Qt::SkipEmptyParts)) {
            const QString name = setting.section('=', 0, 0);
            m_control->setProperty(name.toLatin1(), setting.section('=', 1));
        }
        m_control->setGeometry(12, 12, 190, qBound(14, m_control->sizeHint().height(), 90));
        m_control->setEnabled(state != State::Disabled);
        m_control->setAttribute(Qt::WA_UnderMouse, state == State::Hovered);
        show();
        m_control->show();
        if (state == State::Focused)
            m_control->setFocus(Qt::TabFocusReason);
        QApplication::setActiveWindow(state == State::Inactive ? nullptr : this);
        if (state == State::Pressed)
            m_control->setProperty(m_control->inherits("QAbstractButton") ? "down" : "sliderDown",
                                   true);
    }

    QImage picture(bool on)
    {
        toggle(m_control, m_sample.toggled, on);
        QCoreApplication::processEvents();
        return m_control->isWindow() ? m_control->grab().toImage() : grab().toImage();
    }

private:
    const Sample &m_sample;
    QWidget *m_control;
};

Result measure(const Sample &sample)
{
    Result result;
    const bool isFocus = sample.toggled == "focus";
    for (State state : {State::Normal, State::Hovered, State::Pressed, State::Focused,
                        State::Inactive, State::Disabled})
    {
        if (isFocus && state != State::Normal && state != State::Hovered)
            continue;
        if (sample.name() == "menu: chosen row" && state == State::Disabled)
            continue; // nothing can be chosen
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Stage stage(sample, state, direction);
            const QImage without = stage.picture(false);
            const double found = contrast(stage.picture(true), without);
            double &least = state == State::Disabled ? result.disabled : result.enabled;
            least = least > 0.0 ? std::min(least, found) : found;
        }
    }
    return result;
}

void showFace(bool readable)
{
    DarkUX::getInstance().initialize();
    const QPalette theme = DarkUX::getInstance().palette();
    if (readable)
        QApplication::setStyle(new DarkReadableStyle);
    else
        QApplication::setStyle(new DarkFusionStyle);
    LivePalette::apply(readable ? DarkReadableStyle::palette(theme) : theme);
}

void printTable()
{
    QVector<QByteArray> rows(samples().size());
    for (bool readable : {false, true}) {
        showFace(readable);
        for (int i = 0; i < rows.size(); ++i) {
            const Result result = measure(samples()[i]);
            for (double found : {result.enabled, result.disabled})
                rows[i] += (found > 0.0 ? QByteArray::number(found, 'f', 2) : "–") + " | ";
        }
    }
    for (int i = 0; i < rows.size(); ++i)
        std::printf("| %s | %s | %s\n", qPrintable(samples()[i].control),
                    qPrintable(samples()[i].part), rows[i].trimmed().constData());
}

/// A host's own style on top, which counts the boxes that it has to draw.
class Host : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        boxes += element == PE_IndicatorCheckBox;
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    mutable int boxes = 0;
};

} // namespace

class TestReadable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { showFace(true); }
    void contrasts_data();
    void contrasts();
    void palettes();
    void focusByKeyboardOnly();
    void polishing();
    void listsOfComboBoxesBelowAHostsProxy();
    void livePalette();
};

void TestReadable::contrasts_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Sample &sample : samples())
        QTest::newRow(qPrintable(sample.name())) << index++;
}

void TestReadable::contrasts()
{
    QFETCH(int, index);
    const Sample &sample = samples()[index];
    const Result result = measure(sample);
    const QByteArray message = "enabled " + QByteArray::number(result.enabled) + ", disabled "
                               + QByteArray::number(result.disabled);
    QVERIFY2(result.enabled >= (sample.part.endsWith("text") ? 4.5 : 3.0), message.constData());
    QVERIFY2(result.disabled == 0.0 || result.disabled >= 3.0, message.constData());
}

/// The rule holds for themes it was not made for.
void TestReadable::palettes()
{
    using P = QPalette;
    const QPalette dark = DarkUX::getInstance().defaultPalette();
    for (const QPalette &theme : {dark, LivePalette::dimmed(dark, 0.4), P(Qt::lightGray)}) {
        const QPalette readable = DarkReadableStyle::palette(theme);
        for (P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
            const auto between = [&](P::ColorRole a, P::ColorRole b) {
                return contrast(readable.color(group, a), readable.color(group, b));
            };
            const double least = group == P::Disabled ? 3.0 : 4.5;
            for (P::ColorRole text : {P::WindowText, P::Text, P::ButtonText, P::PlaceholderText,
                                      P::Link, P::LinkVisited})
            {
                for (P::ColorRole ground : {P::Window, P::Base, P::AlternateBase, P::Button})
                    QVERIFY(between(text, ground) >= least);
            }
            QVERIFY(between(P::HighlightedText, P::Highlight) >= least);
            QVERIFY(between(P::ToolTipText, P::ToolTipBase) >= least);
            QVERIFY(between(P::Highlight, P::Base) >= 3.0);
        }
    }
}

void TestReadable::focusByKeyboardOnly()
{
    QWidget window;
    QPushButton first("First", &window);
    QLineEdit second(&window);
    second.move(0, 40);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto framed = [&window] {
        const auto *frame = window.findChild<QFocusFrame *>();
        return frame ? frame->widget() : nullptr;
    };

    second.setFocus(Qt::TabFocusReason);
    QCOMPARE(framed(), &second);
    QTest::keyClick(&second, Qt::Key_Tab);
    QCOMPARE(framed(), &first);
    QApplication::setActiveWindow(nullptr);
    QVERIFY(!framed());
    QApplication::setActiveWindow(&window);
    QCOMPARE(framed(), &first);

    QTest::mouseClick(&second, Qt::LeftButton);
    QVERIFY(!framed());
    first.setFocus(); // by the program, in answer to the pointer
    QVERIFY(!framed());
    QTest::keyClick(&first, Qt::Key_A);
    second.setFocus(); // in answer to the key
    QCOMPARE(framed(), &second);
}

void TestReadable::polishing()
{
    QTabBar bar;
    QApplication::style()->polish(&bar);
    QVERIFY(bar.testAttribute(Qt::WA_Hover));
}

void TestReadable::listsOfComboBoxesBelowAHostsProxy()
{
    Host host(new DarkReadableStyle);
    QComboBox box;
    box.setStyle(&host);
    box.addItems({"A", "B"});
    box.showPopup();
    box.view()->grab();
    QCOMPARE(host.boxes, 0);
    box.setItemData(1, Qt::Unchecked, Qt::CheckStateRole);
    box.view()->grab();
    QVERIFY(host.boxes > 0);
    box.hidePopup();
}

/// Reaches those, too, whose own palette does not change.
void TestReadable::livePalette()
{
    struct Painted : QWidget
    {
        void paintEvent(QPaintEvent *) override { ++count; }
        int count = 0;
    } widget;
    widget.setPalette(Qt::red);
    widget.show();
    QTest::qWait(1);
    widget.count = 0;
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Link, Qt::green);
    LivePalette::apply(palette);
    QTRY_VERIFY(widget.count > 0);
    QCOMPARE(DarkUX::getInstance().palette(), palette);
    QCOMPARE(QApplication::palette().color(QPalette::Link), QColor(Qt::green));
}

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    QApplication::setCursorFlashTime(0);
    QFont fixed("DejaVu Sans Mono"); // in which blanks are as wide as letters
    fixed.setStyleHint(QFont::TypeWriter);
    QApplication::setFont(fixed);
    DarkUX theme;
    const std::unique_ptr<QStyle> exact(theme.style());
    if (app.arguments().contains("--table")) {
        printTable();
        return 0;
    }
    TestReadable test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_readable.moc"
