#include "stylepainting.h"

#include <memory>

using namespace StylePainting;

Q_DECLARE_METATYPE(QStyle::SubControl)

namespace {

const Qt::WindowFlags everyButton = Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint
                                    | Qt::WindowMaximizeButtonHint | Qt::WindowShadeButtonHint
                                    | Qt::WindowContextHelpButtonHint;

} // namespace

class TestStyleComplexGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        auto option = makeComplex<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.frame = frame;
        if (!buttons)
            option.buttonSymbols = QAbstractSpinBox::NoButtons;
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
    }

    void comboBox()
    {
        auto option = makeComplex<QStyleOptionComboBox>(QRect(10, 20, 120, 26));
        option.editable = true;
        const QRect common =
            QCommonStyle().subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow);
        const QRect arrow(common.right() - 18, common.top() - 2, 19, common.height() + 4);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const auto expected = [&](const QRect &rect) {
                return QStyle::visualRect(direction, option.rect, rect);
            };
            const auto field = [&](QStyle::State state, bool isEditable) {
                option.state = state;
                option.editable = isEditable;
                return place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField);
            };
            QCOMPARE(field({}, true), expected(QRect(12, 22, 97, 22)));
            QCOMPARE(field(QStyle::State_On, true), expected(QRect(12, 22, 97, 22)));
            // The text moves when it is pressed, before it is mirrored.
            QCOMPARE(field({}, false), expected(QRect(14, 22, 95, 22)));
            for (const QStyle::StateFlag pressed : {QStyle::State_Sunken, QStyle::State_On})
                QCOMPARE(field(pressed, false), expected(QRect(15, 23, 95, 22)));
            QCOMPARE(place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow), expected(arrow));
        }
    }

    void slider()
    {
        struct Case
        {
            QSlider::TickPosition ticks;
            int groove; // across
            int handle;
        };
        for (const Case &place :
             {Case{QSlider::NoTicks, 16, 12}, Case{QSlider::TicksAbove, 20, 16},
              Case{QSlider::TicksBelow, 12, 8}, Case{QSlider::TicksBothSides, 16, 12}})
        {
            for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
                const auto turned = [&](int along, int across, int length, int thickness) {
                    return orientation == Qt::Horizontal ? QRect(along, across, length, thickness)
                                                         : QRect(across, along, thickness, length);
                };
                auto option = makeSlider(orientation, 200, 40);
                option.tickPosition = place.ticks;
                const auto handle = [&] {
                    return this->place(QStyle::CC_Slider, option, QStyle::SC_SliderHandle);
                };
                QCOMPARE(this->place(QStyle::CC_Slider, option, QStyle::SC_SliderGroove),
                         turned(0, place.groove, 200, 7));
                QCOMPARE(handle(), turned(0, place.handle, 15, 15));
                option.sliderPosition = option.maximum;
                QCOMPARE(handle(), turned(185, place.handle, 15, 15));
                option.upsideDown = true;
                QCOMPARE(handle(), turned(0, place.handle, 15, 15));
            }
        }
    }

    void groupBox()
    {
        auto option = makeComplex<QStyleOptionGroupBox>(QRect(0, 0, 200, 100));
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
        QTest::addColumn<QVector<QStyle::SubControl>>("buttons"); // between help and close
        using Buttons = QVector<QStyle::SubControl>;
        QTest::newRow("normal") << 0
                                << Buttons{QStyle::SC_TitleBarMinButton,
                                           QStyle::SC_TitleBarMaxButton,
                                           QStyle::SC_TitleBarShadeButton};
        QTest::newRow("minimized")
            << int(Qt::WindowMinimized)
            << Buttons{QStyle::SC_TitleBarNormalButton, QStyle::SC_TitleBarMaxButton,
                       QStyle::SC_TitleBarUnshadeButton};
        QTest::newRow("maximized")
            << int(Qt::WindowMaximized)
            << Buttons{QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarNormalButton,
                       QStyle::SC_TitleBarShadeButton};
    }

    void titleBar()
    {
        QFETCH(int, state);
        QFETCH(QVector<QStyle::SubControl>, buttons);
        QStyleOptionTitleBar option = makeTitleBar(state, everyButton);
        buttons.prepend(QStyle::SC_TitleBarContextHelpButton);
        buttons.append(QStyle::SC_TitleBarCloseButton);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const auto compare = [&](QStyle::SubControl part, const QRect &expected) {
                QCOMPARE(place(QStyle::CC_TitleBar, option, part),
                         QStyle::visualRect(direction, option.rect, expected));
            };
            for (int i = 0; i < buttons.size(); ++i)
                compare(buttons.at(i), QRect(196 + 20 * i, 3, 18, 18));
            compare(QStyle::SC_TitleBarLabel, QRect(20, 0, 180, 24));
            compare(QStyle::SC_TitleBarSysMenu, QRect(5, 3, 18, 18));
        }
    }

    void titleBarWithoutButtons()
    {
        const QStyleOptionTitleBar option = makeTitleBar(0, {});
        QCOMPARE(place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarLabel), option.rect);
        for (QStyle::SubControl button :
             {QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarMaxButton,
              QStyle::SC_TitleBarCloseButton, QStyle::SC_TitleBarNormalButton,
              QStyle::SC_TitleBarShadeButton, QStyle::SC_TitleBarUnshadeButton})
            QVERIFY(!place(QStyle::CC_TitleBar, option, button).isValid());
    }

    void transientScrollBarHasNoLineButtons()
    {
        auto option = makeSlider(Qt::Vertical, 200, 14);
        option.pageStep = 100;
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
        return m_style->subControlRect(control, &option, part);
    }
    DarkUX m_theme;
    const std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestStyleComplexGeometry)

#include "tst_style_complex_geometry.moc"
