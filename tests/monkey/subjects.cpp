#include "subjects.h"

#include <nocturne/CheckBox>
#include <nocturne/CheckComboBox>
#include <nocturne/ClickableLabel>
#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/ColorToolButton>
#include <nocturne/ComboBox>
#include <nocturne/ComboBoxListView>
#include <nocturne/ComboFileChooser>
#include <nocturne/CroppingLabel>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/Dial>
#include <nocturne/FileChooser>
#include <nocturne/FontComboBox>
#include <nocturne/Frame>
#include <nocturne/GradientTool>
#include <nocturne/GroupBox>
#include <nocturne/ItemDelegate>
#include <nocturne/KeySequenceEdit>
#include <nocturne/LetterBoxWidget>
#include <nocturne/LineEdit>
#include <nocturne/LineEditButton>
#include <nocturne/ListView>
#include <nocturne/ListWidget>
#include <nocturne/Menu>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/ProgressBar>
#include <nocturne/ProgressIndicator>
#include <nocturne/RadioButton>
#include <nocturne/RangeSlider>
#include <nocturne/RoundProgressBar>
#include <nocturne/SearchLineEdit>
#include <nocturne/SimpleListWidget>
#include <nocturne/SlideCheckBox>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>
#include <nocturne/Splitter>
#include <nocturne/StatusBar>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>
#include <nocturne/TreeWidget>
#include <nocturne/Widget>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QStringListModel>
#include <QtWidgets/QColorDialog>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace {

QColor colorBy(Dice &dice)
{
    const QColor color(dice.roll(256), dice.roll(256), dice.roll(256), dice.roll(256));
    return dice.roll(8) == 0 ? QColor() : color;
}

QVector<QPair<double, QColor>> rampBy(Dice &dice)
{
    QVector<QPair<double, QColor>> ramp;
    for (int i = dice.roll(6); i > 0; --i)
        ramp << qMakePair(dice.extremeDouble(), colorBy(dice));
    return ramp;
}

/// A value of a meta type by the dice, invalid if it is none that is known here.
QVariant valueBy(Dice &dice, int type)
{
    return type == QMetaType::Bool           ? QVariant(dice.coin())
           : type == QMetaType::Int          ? QVariant(dice.extremeInt())
           : type == QMetaType::UInt         ? QVariant(uint(dice.extremeInt()))
           : type == QMetaType::Double       ? QVariant(dice.extremeDouble())
           : type == QMetaType::QString      ? QVariant(dice.text())
           : type == QMetaType::QColor       ? QVariant(colorBy(dice))
           : type == QMetaType::QFont        ? QVariant(QFont(dice.text(), 1 + dice.roll(99)))
           : type == QMetaType::QKeySequence ? QVariant(QKeySequence(dice.extremeInt()))
                                             : QVariant();
}

/// Something that is done to a widget, by the dice.
template <typename Widget>
using Use = std::function<void(Widget *, Dice &)>;
using Uses = std::vector<Use<QWidget>>;

/// Sets a property, and to a value that it has if it is an enumeration.
Use<QWidget> use(const QMetaProperty &property)
{
    return [property](QWidget *widget, Dice &dice) {
        const QMetaEnum keys = property.enumerator();
        property.write(widget, property.isEnumType()
                                   ? QVariant(keys.value(dice.roll(keys.keyCount())))
                                   : valueBy(dice, property.userType()));
    };
}

/// Calls a slot, if every argument has a type that is known here.
Use<QWidget> use(const QMetaMethod &slot)
{
    return [slot](QWidget *widget, Dice &dice) {
        QVariant values[3];
        QGenericArgument arguments[3];
        for (int i = 0; i < slot.parameterCount(); ++i) {
            values[i] = valueBy(dice, slot.parameterType(i));
            if (!values[i].isValid())
                return;
            arguments[i] = {values[i].typeName(), values[i].constData()};
        }
        slot.invoke(widget, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]);
    };
}

/// What a class adds to the toolkit's properties and public slots, and those of the toolkit's own
/// that are named.
Uses usesOf(const QMetaObject &meta, const QString &named)
{
    Uses uses;
    const QStringList names = named.split(' ');
    for (int i = 0; i < meta.propertyCount(); ++i) {
        if (i >= meta.propertyOffset() || names.contains(meta.property(i).name()))
            uses.push_back(use(meta.property(i)));
    }
    for (int i = 0; i < meta.methodCount(); ++i) {
        const QMetaMethod slot = meta.method(i);
        if (slot.methodType() == QMetaMethod::Slot && slot.access() == QMetaMethod::Public
            && (i >= meta.methodOffset() || names.contains(slot.name())))
            uses.push_back(use(slot));
    }
    return uses;
}

/// A class, what may be used of the toolkit's under its name, and what else is done to it.
template <typename Widget>
Subject subject(const QString &named, const Use<Widget> &other = {}, const Check &check = {})
{
    const QMetaObject &meta = Widget::staticMetaObject;
    Uses uses = usesOf(meta, named);
    // Half of the time, or a class with many properties would see little of it.
    if (other) {
        uses.resize(qMax(std::size_t(1), uses.size()) * 2, [other](QWidget *widget, Dice &dice) {
            other(static_cast<Widget *>(widget), dice);
        });
    }
    const auto create = []() -> QWidget * {
        if constexpr (std::is_base_of_v<QSlider, Widget>)
            return new Widget(Qt::Horizontal, nullptr);
        else
            return new Widget;
    };
    const auto call = [uses](QWidget *widget, Dice &dice) {
        if (const int count = int(uses.size()))
            uses[std::size_t(dice.roll(count))](widget, dice);
    };
    static const QByteArrayList late{"CheckComboBox", "ComboFileChooser", "CroppingLabel",
                                     "FileChooser",   "FontComboBox",     "ListWidget",
                                     "Menu",          "RangeSlider"};
    return {meta.className(), create, call, check, late.contains(meta.className())};
}

/// That values, beginning with the lowest, never get out of order.
Check ascending(const QString &properties)
{
    return [names = properties.split(' ')](QWidget *widget) {
        for (int i = 1; i < names.size(); ++i) {
            const double lower = widget->property(names.at(i - 1).toLatin1()).toDouble();
            const double upper = widget->property(names.at(i).toLatin1()).toDouble();
            if (!(lower <= upper))
                return "broken promise: " + names.at(i - 1) + " is at most " + names.at(i);
        }
        return QString();
    };
}

QString checkRamp(QWidget *widget)
{
    auto *tool = static_cast<GradientTool *>(widget);
    const auto ramp = tool->getRamp();
    const bool isInside = std::all_of(ramp.begin(), ramp.end(), [](const auto &stop) {
        return stop.first >= 0.0 && stop.first <= 1.0;
    });
    return isInside && ramp.size() >= 2 && tool->getColorTable().size() == 256
               ? QString()
               : "broken promise: two stops or more, from 0 to 1";
}

// What several classes have from the toolkit.

template <typename Widget>
void setRange(Widget *widget, Dice &dice)
{
    widget->setRange(dice.rangeEnd(), dice.rangeEnd());
}

void setModel(QAbstractItemView *view, Dice &dice)
{
    delete view->model();
    const QStringList rows = dice.coin() ? QStringList{dice.text(), dice.text()} : QStringList();
    view->setModel(new QStringListModel(rows, view));
}

void useCombo(QComboBox *combo, Dice &dice)
{
    combo->addItem(dice.text());
    // The toolkit's popup tells its highlighted item in the middle of a removal.
    if (dice.roll(3) == 0 && !combo->view()->isVisible())
        combo->removeItem(dice.roll(combo->count() + 1));
    if (dice.roll(3) == 0)
        combo->insertSeparator(dice.roll(5));
    dice.coin() ? combo->showPopup() : combo->hidePopup();
}

void useList(QListWidget *list, Dice &dice)
{
    for (int i = dice.roll(30); i > 0; --i)
        list->addItem(dice.text());
    delete list->takeItem(dice.roll(list->count() + 1));
    list->setItemDelegate(new ItemDelegate(list));
    if (QListWidgetItem *item = list->item(dice.roll(list->count() + 1)))
        item->setCheckState(dice.coin() ? Qt::Checked : Qt::Unchecked); // may be the list's end
}

const QString listNames = "selectionMode dragDropMode viewMode clear currentRow scrollToBottom";

std::vector<Subject> makeSubjects()
{
    return {
        subject<CheckBox>("text"),
        subject<CheckComboBox>("",
                               [](auto *w, Dice &d) {
                                   useCombo(w, d);
                                   w->addCheckItem(d.text(), d.roll(9),
                                                   static_cast<Qt::CheckState>(d.roll(3)));
                                   w->setNoneCheckedText(d.text());
                                   w->setAllCheckedText(d.text());
                               }),
        subject<ClickableLabel>("text"),
        subject<ColorBar>(
            "", [](auto *w, Dice &d) { d.coin() ? w->startFlicker() : w->stopFlicker(); }),
        subject<ColorButton>(""),
        subject<ColorToolButton>("text"),
        subject<ComboBox>("currentIndex editable",
                          [](auto *w, Dice &d) {
                              w->addParentItem(d.text());
                              w->addChildItem(d.text(), d.roll(9));
                              useCombo(w, d);
                          }),
        subject<ComboBoxListView>("", setModel),
        subject<ComboFileChooser>(
            "", [](auto *w, Dice &d) { d.roll(4) ? w->addItem(d.text()) : w->clear(); }),
        subject<CroppingLabel>("", [](auto *w, Dice &) { w->editBegin(); }),
        subject<DelayButton>("checkable toggle"),
        subject<DelayToolButton>("checkable toggle"),
        subject<Dial>("", setRange<Dial>),
        subject<FileChooser>(""),
        subject<FontComboBox>("currentFont", useCombo),
        subject<Frame>("frameShape frameShadow"),
        subject<GradientTool>(
            "",
            [](auto *w, Dice &d) {
                w->setCurrentColor(colorBy(d));
                auto *dialog = d.coin() ? nullptr : new QColorDialog;
                if (dialog) // a child would be deleted inside of its own signals
                    QObject::connect(w, &QObject::destroyed, dialog, &QObject::deleteLater);
                w->setColorChoose(dialog);
                w->setRamp(rampBy(d));
                w->getSliderAlpha(d.extremeInt());
            },
            checkRamp),
        subject<GroupBox>("title checkable checked", [](auto *w, Dice &) { new QWidget(w); }),
        subject<KeySequenceEdit>(""),
        subject<LetterBoxWidget>("",
                                 [](auto *w, Dice &d) {
                                     w->clearBackgroundColor();
                                     if (d.coin())
                                         delete w->widget();
                                     w->setWidget(d.roll(4) == 0 ? nullptr : new QWidget);
                                     if (w->widget())
                                         w->widget()->setSizeIncrement(d.roll(20), d.roll(20));
                                 }),
        subject<LineEdit>("text"),
        subject<LineEditButton>(""),
        subject<ListView>("", setModel),
        subject<ListWidget>(listNames,
                            [](auto *w, Dice &d) {
                                w->findItem(d.text());
                                w->setViewportMargins(d.roll(9), d.roll(9), d.roll(9), d.roll(9));
                                useList(w, d);
                            }),
        subject<Menu>("",
                      [](auto *w, Dice &d) {
                          if (d.roll(4) == 0) // later: the toolkit does not bear it in a signal
                              QMetaObject::invokeMethod(w, &Menu::clear, Qt::QueuedConnection);
                          w->addAction(d.text());
                          w->addMenu(d.text())->addAction(d.text());
                          d.coin() ? w->popup(QPoint(5, 5)) : static_cast<void>(w->close());
                      }),
        subject<MidiSequenceEdit>("",
                                  [](auto *w, Dice &d) {
                                      static QMidiMessage edited;
                                      QMidiMessage message;
                                      message.setType(d.extremeInt());
                                      message.setKey(d.extremeInt());
                                      w->setKeySequence(d.coin() ? &edited : nullptr);
                                      w->updateKeySequence(d.roll(4) ? &message : nullptr);
                                  }),
        subject<ProgressBar>("value", setRange<ProgressBar>),
        subject<ProgressIndicator>(""),
        subject<RadioButton>("text"),
        subject<RangeSlider>(
            "orientation tracking invertedAppearance",
            [](auto *w, Dice &d) {
                setRange(w, d);
                w->setPositions(d.extremeInt(), d.extremeInt(), d.extremeInt());
            },
            ascending("minimumValue maximumValue")),
        subject<RoundProgressBar>(
            "",
            [](auto *w, Dice &d) {
                w->setDataColors(rampBy(d));
                w->setTitle(d.text(), QFont(), QFont(), d.extremeDouble(), d.coin());
                (void)w->humanReadableSize(d.extremeInt() * (qint64(1) << d.roll(32)));
            },
            ascending("minimum value maximum")),
        subject<SearchLineEdit>("text"),
        subject<SimpleListWidget>(listNames, useList),
        subject<SlideCheckBox>("toggle"),
        subject<Slider>("orientation value",
                        [](auto *w, Dice &d) {
                            setRange(w, d);
                            w->setKeyPressed(d.coin());
                        }),
        subject<SpanSlider>(
            "orientation tracking",
            [](auto *w, Dice &d) {
                setRange(w, d);
                w->swapControls();
                w->triggerAction(static_cast<QAbstractSlider::SliderAction>(d.roll(9)), d.coin());
            },
            ascending("minimum lowerValue upperValue maximum")),
        subject<SpinBox>("",
                         [](auto *w, Dice &d) {
                             setRange(w, d);
                             w->setValue(d.extremeDouble(), d.coin());
                         }),
        subject<Splitter>("orientation",
                          [](auto *w, Dice &d) {
                              w->addWidget(new QWidget);
                              w->setSizes({d.extremeInt(), d.extremeInt()});
                              w->setHandleWidth(d.roll(40) - 5);
                              delete w->widget(d.roll(w->count() * 2));
                          }),
        subject<StatusBar>("showMessage sizeGripEnabled"),
        subject<TabBar>("shape tabsClosable movable currentIndex",
                        [](auto *w, Dice &d) {
                            w->addTab(d.text());
                            w->removeTab(d.roll(w->count() * 2));
                            w->setWidth(d.roll(3000) - 100);
                        }),
        subject<TabWidget>("tabPosition tabsClosable movable",
                           [](auto *w, Dice &d) {
                               w->addTab(new QWidget, d.text());
                               delete w->widget(d.roll(w->count() * 2));
                               w->setTabBarWidth(d.roll(3000) - 100);
                           }),
        subject<TreeWidget>(
            "verticalScrollMode clear expandAll collapseAll headerHidden scrollToBottom",
            [](auto *w, Dice &d) {
                auto *item = new QTreeWidgetItem(w, {d.text()});
                for (int i = d.coin() ? 20 : 0; i > 0; --i)
                    item->addChild(new QTreeWidgetItem({QString::number(i)}));
                item->setExpanded(d.coin());
                w->setColumnCount(d.roll(5));
                delete w->topLevelItem(d.roll(w->topLevelItemCount() * 2));
            }),
        subject<Widget>(""),
    };
}

} // namespace

int Dice::extremeInt()
{
    const int extremes[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0,
                            roll(1000000) - 500000};
    const int which = roll(8);
    return which < 5 ? extremes[which] : roll(200) - 50;
}

double Dice::extremeDouble()
{
    using Limits = std::numeric_limits<double>;
    const double extremes[] = {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
                               Limits::max(), -1e-300};
    const int which = roll(10);
    return which < 5 ? extremes[which] : roll(2000) / 1000.0 - 0.5;
}

QString Dice::text()
{
    const QString texts[] = {
        QString(),
        QString(500, 'W'),
        "&Mnemonic\tCtrl+M",
        "two\nlines <b>bold</b> %v %p %byte %connect",
        QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xf0\x9f\x8e\xac e\xcc\x81"),
        QString(QChar(0xd800)) + QChar(0) + 'x',
        QString("Clip %1").arg(roll(100))};
    return texts[qMin(roll(8), 6)];
}

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> all = makeSubjects();
    return all;
}
