#include "testsupport.h"

#include <nocturne/DarkFusionStyle>

#include <QtWidgets/QStyleOption>

Q_DECLARE_METATYPE(QStyle::SubControl)

namespace {

QStyleOptionSpinBox spinBoxOption(bool frame, QAbstractSpinBox::ButtonSymbols symbols)
{
    QStyleOptionSpinBox option;
    option.rect = QRect(0, 0, 100, 30);
    option.frame = frame;
    option.buttonSymbols = symbols;
    option.subControls = QStyle::SC_All;
    return option;
}

QStyleOptionSlider sliderOption(Qt::Orientation orientation, QSlider::TickPosition ticks)
{
    QStyleOptionSlider option;
    option.orientation = orientation;
    option.rect = orientation == Qt::Horizontal ? QRect(0, 0, 200, 40) : QRect(0, 0, 40, 200);
    option.minimum = 0;
    option.maximum = 10;
    option.tickPosition = ticks;
    option.subControls = QStyle::SC_All;
    return option;
}

QStyleOptionTitleBar titleBarOption(Qt::WindowFlags flags, int state)
{
    QStyleOptionTitleBar option;
    option.rect = QRect(0, 0, 300, 24);
    option.titleBarFlags = flags;
    option.titleBarState = state;
    option.subControls = QStyle::SC_All;
    return option;
}

const Qt::WindowFlags everyFlag = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                                  | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
                                  | Qt::WindowShadeButtonHint | Qt::WindowContextHelpButtonHint;

} // namespace

class TestStyleComplexGeometry : public QObject
{
    Q_OBJECT

private slots:
    void spinBox_data()
    {
        QTest::addColumn<bool>("frame");
        QTest::addColumn<bool>("buttons");
        QTest::addColumn<QRect>("up");
        QTest::addColumn<QRect>("down");
        QTest::addColumn<QRect>("field");

        QTest::newRow("framed") << true << true << QRect(85, 3, 14, 12) << QRect(85, 15, 14, 12)
                                << QRect(3, 3, 80, 24);
        QTest::newRow("frameless") << false << true << QRect(88, 0, 14, 15) << QRect(88, 15, 14, 15)
                                   << QRect(0, 0, 88, 30);
        QTest::newRow("no buttons") << true << false << QRect() << QRect() << QRect(3, 3, 94, 24);
        QTest::newRow("nothing") << false << false << QRect() << QRect() << QRect(0, 0, 100, 30);
    }

    void spinBox()
    {
        QFETCH(bool, frame);
        QFETCH(bool, buttons);
        QFETCH(QRect, up);
        QFETCH(QRect, down);
        QFETCH(QRect, field);
        QStyleOptionSpinBox option = spinBoxOption(frame, buttons ? QAbstractSpinBox::UpDownArrows
                                                                  : QAbstractSpinBox::NoButtons);
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const auto expected = [&](const QRect &rect) {
                return rect.isNull() ? rect : QStyle::visualRect(direction, option.rect, rect);
            };
            QCOMPARE(place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxUp), expected(up));
            QCOMPARE(place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxDown), expected(down));
            QCOMPARE(place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxEditField),
                     expected(field));
            QCOMPARE(place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxFrame), option.rect);
        }
        if (buttons && frame)
            QCOMPARE(place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxUp), QRect(1, 3, 14, 12));
    }

    void comboBox()
    {
        QStyleOptionComboBox option;
        option.rect = QRect(10, 20, 120, 26);
        option.subControls = QStyle::SC_All;
        option.editable = true;
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField),
                 QRect(12, 22, 97, 22));
        const QRect common =
            QCommonStyle().subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow);
        const QRect arrow(common.right() - 18, common.top() - 2, 19, common.height() + 4);
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow), arrow);

        option.direction = Qt::RightToLeft;
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField),
                 QRect(31, 22, 97, 22));
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow),
                 QStyle::visualRect(Qt::RightToLeft, option.rect, arrow));
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxFrame), option.rect);
    }

    void comboBoxTextMovesWhenPressed()
    {
        QStyleOptionComboBox option;
        option.rect = QRect(0, 0, 120, 26);
        option.editable = false;
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField),
                 QRect(4, 2, 95, 22));
        for (QStyle::StateFlag pressed : {QStyle::State_Sunken, QStyle::State_On}) {
            option.state = pressed;
            QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField),
                     QRect(5, 3, 95, 22));
        }
        option.editable = true;
        QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField),
                 QRect(2, 2, 97, 22));
    }

    void slider_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("ticks");
        QTest::addColumn<QRect>("groove");
        QTest::addColumn<QRect>("handleAtMinimum");

        const auto h = Qt::Horizontal;
        const auto v = Qt::Vertical;
        QTest::newRow("horizontal")
            << h << int(QSlider::NoTicks) << QRect(0, 16, 200, 7) << QRect(0, 12, 15, 15);
        QTest::newRow("horizontal, above")
            << h << int(QSlider::TicksAbove) << QRect(0, 20, 200, 7) << QRect(0, 16, 15, 15);
        QTest::newRow("horizontal, below")
            << h << int(QSlider::TicksBelow) << QRect(0, 12, 200, 7) << QRect(0, 8, 15, 15);
        QTest::newRow("horizontal, both")
            << h << int(QSlider::TicksBothSides) << QRect(0, 16, 200, 7) << QRect(0, 12, 15, 15);
        QTest::newRow("vertical") << v << int(QSlider::NoTicks) << QRect(16, 0, 7, 200)
                                  << QRect(12, 0, 15, 15);
        QTest::newRow("vertical, left")
            << v << int(QSlider::TicksLeft) << QRect(20, 0, 7, 200) << QRect(16, 0, 15, 15);
        QTest::newRow("vertical, right")
            << v << int(QSlider::TicksRight) << QRect(12, 0, 7, 200) << QRect(8, 0, 15, 15);
    }

    void slider()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, ticks);
        QFETCH(QRect, groove);
        QFETCH(QRect, handleAtMinimum);
        QStyleOptionSlider option =
            sliderOption(orientation, static_cast<QSlider::TickPosition>(ticks));
        QCOMPARE(place(QStyle::CC_Slider, option, QStyle::SC_SliderGroove), groove);
        QCOMPARE(place(QStyle::CC_Slider, option, QStyle::SC_SliderHandle), handleAtMinimum);

        const QPoint travel = orientation == Qt::Horizontal ? QPoint(185, 0) : QPoint(0, 185);
        option.sliderPosition = option.maximum;
        QCOMPARE(place(QStyle::CC_Slider, option, QStyle::SC_SliderHandle),
                 handleAtMinimum.translated(travel));
        option.upsideDown = true;
        QCOMPARE(place(QStyle::CC_Slider, option, QStyle::SC_SliderHandle), handleAtMinimum);
    }

    void groupBox()
    {
        QStyleOptionGroupBox option;
        option.rect = QRect(0, 0, 200, 100);
        option.text = QStringLiteral("Programme");
        option.textAlignment = Qt::AlignRight;
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        const QFontMetrics metrics = option.fontMetrics;
        const QSize text = metrics.boundingRect(option.text).size() + QSize(2, 2);

        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxFrame), option.rect);
        const int top = qMax(14, metrics.height()) + 6;
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxContents),
                 QRect(3, top, 194, 97 - top));
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxLabel),
                 QRect(QPoint(0, 1), text));

        option.subControls |= QStyle::SC_GroupBoxCheckBox;
        const QRect label(QPoint(19, 1), text);
        const QRect check(1, text.height() > 14 ? (text.height() - 14) / 2 : 0, 14, 14);
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxLabel), label);
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxCheckBox), check);
        option.direction = Qt::RightToLeft;
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxLabel),
                 QRect(QPoint(181 - text.width(), 1), text));
        QCOMPARE(place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxCheckBox),
                 QRect(185, check.top(), 14, 14));
    }

    void titleBar_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QVector<QStyle::SubControl>>("buttons");

        const auto help = QStyle::SC_TitleBarContextHelpButton;
        const auto close = QStyle::SC_TitleBarCloseButton;
        QTest::newRow("normal") << 0
                                << QVector<QStyle::SubControl>{help, QStyle::SC_TitleBarMinButton,
                                                               QStyle::SC_TitleBarMaxButton,
                                                               QStyle::SC_TitleBarShadeButton,
                                                               close};
        QTest::newRow("minimized")
            << int(Qt::WindowMinimized)
            << QVector<QStyle::SubControl>{help, QStyle::SC_TitleBarNormalButton,
                                           QStyle::SC_TitleBarMaxButton,
                                           QStyle::SC_TitleBarUnshadeButton, close};
        QTest::newRow("maximized")
            << int(Qt::WindowMaximized)
            << QVector<QStyle::SubControl>{help, QStyle::SC_TitleBarMinButton,
                                           QStyle::SC_TitleBarNormalButton,
                                           QStyle::SC_TitleBarShadeButton, close};
    }

    void titleBar()
    {
        QFETCH(int, state);
        QFETCH(QVector<QStyle::SubControl>, buttons);
        QStyleOptionTitleBar option = titleBarOption(everyFlag, state);
        for (int i = 0; i < buttons.size(); ++i) {
            QCOMPARE(place(QStyle::CC_TitleBar, option, buttons.at(i)),
                     QRect(276 - 20 * (buttons.size() - 1 - i), 3, 18, 18));
        }
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarLabel),
                 QRect(20, 0, 180, 24));
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarSysMenu),
                 QRect(5, 3, 18, 18));

        option.direction = Qt::RightToLeft;
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarCloseButton),
                 QRect(6, 3, 18, 18));
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarLabel),
                 QRect(100, 0, 180, 24));
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarSysMenu),
                 QRect(277, 3, 18, 18));
    }

    void titleBarWithoutButtons()
    {
        const QStyleOptionTitleBar option = titleBarOption(Qt::WindowTitleHint, 0);
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarLabel), option.rect);
        for (QStyle::SubControl button :
             {QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarMaxButton,
              QStyle::SC_TitleBarCloseButton, QStyle::SC_TitleBarNormalButton,
              QStyle::SC_TitleBarShadeButton, QStyle::SC_TitleBarUnshadeButton})
            QVERIFY(!place(QStyle::CC_TitleBar, option, button).isValid());
    }

    void hitTesting()
    {
        QStyleOptionSpinBox spinBox = spinBoxOption(true, QAbstractSpinBox::UpDownArrows);
        QCOMPARE(hit(QStyle::CC_SpinBox, spinBox, {90, 14}), QStyle::SC_SpinBoxUp);
        QCOMPARE(hit(QStyle::CC_SpinBox, spinBox, {90, 15}), QStyle::SC_SpinBoxDown);
        QCOMPARE(hit(QStyle::CC_SpinBox, spinBox, {50, 15}), QStyle::SC_SpinBoxFrame);
        spinBox.direction = Qt::RightToLeft;
        QCOMPARE(hit(QStyle::CC_SpinBox, spinBox, {5, 14}), QStyle::SC_SpinBoxUp);

        QStyleOptionSlider slider = sliderOption(Qt::Horizontal, QSlider::NoTicks);
        QCOMPARE(hit(QStyle::CC_Slider, slider, {7, 19}), QStyle::SC_SliderHandle);
        QCOMPARE(hit(QStyle::CC_Slider, slider, {15, 19}), QStyle::SC_SliderGroove);
        QCOMPARE(hit(QStyle::CC_Slider, slider, {15, 2}), QStyle::SC_None);

        const QStyleOptionTitleBar titleBar = titleBarOption(everyFlag, 0);
        QCOMPARE(hit(QStyle::CC_TitleBar, titleBar, {280, 10}), QStyle::SC_TitleBarCloseButton);
        QCOMPARE(hit(QStyle::CC_TitleBar, titleBar, {100, 10}), QStyle::SC_TitleBarLabel);
    }

    void transientScrollBarHasNoLineButtons()
    {
        QStyleOptionSlider option = sliderOption(Qt::Vertical, QSlider::NoTicks);
        option.rect = QRect(0, 0, 14, 200);
        option.pageStep = 10;
        QVERIFY(place(QStyle::CC_ScrollBar, option, QStyle::SC_ScrollBarSubLine).isEmpty());
        QVERIFY(place(QStyle::CC_ScrollBar, option, QStyle::SC_ScrollBarAddLine).isEmpty());
        QCOMPARE(place(QStyle::CC_ScrollBar, option, QStyle::SC_ScrollBarGroove), option.rect);
        QCOMPARE(place(QStyle::CC_ScrollBar, option, QStyle::SC_ScrollBarSlider),
                 QRect(0, 0, 14, 100));
    }

private:
    template <typename Option>
    QRect place(QStyle::ComplexControl control, const Option &option, QStyle::SubControl part) const
    {
        return m_style.subControlRect(control, &option, part);
    }
    template <typename Option>
    QStyle::SubControl hit(QStyle::ComplexControl control, const Option &option,
                           const QPoint &point) const
    {
        return m_style.hitTestComplexControl(control, &option, point);
    }

    DarkFusionStyle m_style;
};

NOCTURNE_TEST_MAIN(TestStyleComplexGeometry)

#include "tst_style_complex_geometry.moc"
