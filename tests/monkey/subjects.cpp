#include "subjects.h"

#include <nocturne-headers.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QStringListModel>
#include <QtWidgets/QColorDialog>

#include <algorithm>
#include <limits>

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

/// The properties and public slots that a class adds to the toolkit's, and some of the toolkit's.
std::vector<Use<QWidget>> usesOf(const QMetaObject &meta)
{
    static const QByteArrayList toolkit =
        QByteArray("checkable checked clear collapseAll currentFont currentIndex currentRow "
                   "editable expandAll frameShadow frameShape headerHidden invertedAppearance "
                   "movable orientation scrollToBottom selectionMode shape showMessage "
                   "sizeGripEnabled tabPosition tabsClosable text title toggle tracking value "
                   "verticalScrollMode")
            .split(' ');
    std::vector<Use<QWidget>> uses;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        if (i >= meta.propertyOffset() || toolkit.contains(meta.property(i).name()))
            uses.push_back(use(meta.property(i)));
    }
    for (int i = 0; i < meta.methodCount(); ++i) {
        const QMetaMethod slot = meta.method(i);
        if (slot.methodType() == QMetaMethod::Slot && slot.access() == QMetaMethod::Public
            && (i >= meta.methodOffset() || toolkit.contains(slot.name())))
            uses.push_back(use(slot));
    }
    return uses;
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
    // Not for all views: the toolkit's own models trust what is dropped, and icons can be.
    list->setViewMode(dice.coin() ? QListView::IconMode : QListView::ListMode);
    list->setDragDropMode(static_cast<QAbstractItemView::DragDropMode>(dice.roll(5)));
    if (QListWidgetItem *item = list->item(dice.roll(list->count() + 1)))
        item->setCheckState(dice.coin() ? Qt::Checked : Qt::Unchecked); // may be the list's end
}

/// What several classes have from the toolkit beside properties and slots.
void useToolkit(QWidget *widget, Dice &dice)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        useCombo(combo, dice);
    } else if (auto *list = qobject_cast<QListWidget *>(widget)) {
        useList(list, dice);
    } else if (auto *view = qobject_cast<QListView *>(widget)) {
        delete view->model();
        view->setModel(new QStringListModel(dice.text().split(' '), view));
    } else {
        // One end by the other is a range no longer than an int can count.
        const char *const end = dice.coin() ? "minimum" : "maximum";
        if (widget->metaObject()->indexOfProperty(end) >= 0)
            widget->setProperty(end, dice.extremeInt() / 4);
    }
}

/// A class, and what is done to it besides.
template <typename Widget>
Subject subject(const Use<Widget> &other = {})
{
    const char *const name = Widget::staticMetaObject.className();
    static const QByteArrayList late{"CheckComboBox", "ComboFileChooser", "CroppingLabel",
                                     "FileChooser",   "FontComboBox",     "ListWidget",
                                     "Menu",          "RangeSlider"};
    const auto create = [] {
        QWidget *widget = new Widget;
        widget->setProperty("orientation", Qt::Horizontal);
        return widget;
    };
    const auto call = [other, uses = usesOf(Widget::staticMetaObject)](QWidget *widget,
                                                                       Dice &dice) {
        const int what = dice.roll(5);
        if (what < 2 && other)
            other(static_cast<Widget *>(widget), dice);
        else if (what == 2 || uses.empty())
            useToolkit(widget, dice);
        else
            uses[std::size_t(dice.roll(int(uses.size())))](widget, dice);
    };
    return {name, create, call, late.contains(name)};
}

template <typename... Widgets>
std::vector<Subject> plainSubjects()
{
    return {subject<Widgets>()...};
}

std::vector<Subject> makeSubjects()
{
    auto all = plainSubjects<CheckBox, ClickableLabel, ColorButton, ColorToolButton,
                             ComboBoxListView, ComboFileChooser, DelayButton, DelayToolButton, Dial,
                             FileChooser, FontComboBox, Frame, KeySequenceEdit, LineEdit,
                             LineEditButton, ListView, ProgressBar, ProgressIndicator, RadioButton,
                             SearchLineEdit, SimpleListWidget, SlideCheckBox, StatusBar, Widget>();
    const Subject others[] = {
        subject<CheckComboBox>([](auto *w, Dice &d) {
            w->addCheckItem(d.text(), d.roll(9), static_cast<Qt::CheckState>(d.roll(3)));
            w->setNoneCheckedText(d.text());
            w->setAllCheckedText(d.text());
        }),
        subject<ColorBar>(
            [](auto *w, Dice &d) { d.coin() ? w->startFlicker() : w->stopFlicker(); }),
        subject<ComboBox>([](auto *w, Dice &d) {
            w->addParentItem(d.text());
            w->addChildItem(d.text(), d.roll(9));
        }),
        subject<CroppingLabel>([](auto *w, Dice &) { w->editBegin(); }),
        subject<GradientTool>([](auto *w, Dice &d) {
            w->setCurrentColor(colorBy(d));
            auto *dialog = d.coin() ? nullptr : new QColorDialog;
            if (dialog) // a child would be deleted inside of its own signals
                QObject::connect(w, &QObject::destroyed, dialog, &QObject::deleteLater);
            w->setColorChoose(dialog);
            w->setRamp(rampBy(d));
            w->getSliderAlpha(d.extremeInt());
        }),
        subject<GroupBox>([](auto *w, Dice &) { new QWidget(w); }),
        subject<LetterBoxWidget>([](auto *w, Dice &d) {
            w->clearBackgroundColor();
            if (d.coin())
                delete w->widget();
            w->setWidget(d.roll(4) == 0 ? nullptr : new QWidget);
            if (w->widget())
                w->widget()->setSizeIncrement(d.roll(20), d.roll(20));
        }),
        subject<ListWidget>([](auto *w, Dice &d) {
            w->findItem(d.text());
            w->setViewportMargins(d.roll(9), d.roll(9), d.roll(9), d.roll(9));
        }),
        subject<Menu>([](auto *w, Dice &d) {
            if (d.roll(4) == 0) // later: the toolkit does not bear it in a signal
                QMetaObject::invokeMethod(w, &Menu::clear, Qt::QueuedConnection);
            w->addAction(d.text());
            w->addMenu(d.text())->addAction(d.text());
            d.coin() ? w->popup(QPoint(5, 5)) : static_cast<void>(w->close());
        }),
        subject<MidiSequenceEdit>([](auto *w, Dice &d) {
            static QMidiMessage edited;
            QMidiMessage message;
            message.setType(d.extremeInt());
            message.setKey(d.extremeInt());
            w->setKeySequence(d.coin() ? &edited : nullptr);
            w->updateKeySequence(d.roll(4) ? &message : nullptr);
        }),
        subject<RangeSlider>([](auto *w, Dice &d) {
            w->setPositions(d.extremeInt(), d.extremeInt(), d.extremeInt());
        }),
        subject<RoundProgressBar>([](auto *w, Dice &d) {
            w->setDataColors(rampBy(d));
            w->setTitle(d.text(), QFont(), QFont(), d.extremeDouble(), d.coin());
            (void)w->humanReadableSize(d.extremeInt() * (qint64(1) << d.roll(32)));
        }),
        subject<Slider>([](auto *w, Dice &d) { w->setKeyPressed(d.coin()); }),
        subject<SpanSlider>([](auto *w, Dice &d) {
            w->swapControls();
            w->triggerAction(static_cast<QAbstractSlider::SliderAction>(d.roll(9)), d.coin());
        }),
        subject<SpinBox>([](auto *w, Dice &d) { w->setValue(d.extremeDouble(), d.coin()); }),
        subject<Splitter>([](auto *w, Dice &d) {
            w->addWidget(new QWidget);
            w->setSizes({d.extremeInt(), d.extremeInt()});
            w->setHandleWidth(d.roll(40) - 5);
            delete w->widget(d.roll(w->count() * 2));
        }),
        subject<TabBar>([](auto *w, Dice &d) {
            w->addTab(d.text());
            w->removeTab(d.roll(w->count() * 2));
            w->setWidth(d.roll(3000) - 100);
        }),
        subject<TabWidget>([](auto *w, Dice &d) {
            w->addTab(new QWidget, d.text());
            delete w->widget(d.roll(w->count() * 2));
            w->setTabBarWidth(d.roll(3000) - 100);
        }),
        subject<TreeWidget>([](auto *w, Dice &d) {
            auto *item = new QTreeWidgetItem(w, {d.text()});
            for (int i = d.coin() ? 20 : 0; i > 0; --i)
                item->addChild(new QTreeWidgetItem({QString::number(i)}));
            item->setExpanded(d.coin());
            w->setColumnCount(d.roll(5));
            delete w->topLevelItem(d.roll(w->topLevelItemCount() * 2));
        }),
    };
    all.insert(all.end(), std::begin(others), std::end(others));
    return all;
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

QString brokenPromise(const QWidget *widget)
{
    static const QVector<QByteArrayList> ascending{
        {"minimum", "value", "maximum"},
        {"minimum", "lowerValue", "upperValue", "maximum"},
        {"minimumValue", "maximumValue"}};
    for (const QByteArrayList &names : ascending) {
        for (int i = 1; i < names.size(); ++i) {
            const QVariant lower = widget->property(names.at(i - 1));
            const QVariant upper = widget->property(names.at(i));
            // The toolkit's bar stands below its range at first.
            if (lower.isValid() && upper.isValid() && !(lower.toDouble() <= upper.toDouble())
                && !qobject_cast<const QProgressBar *>(widget))
                return QString(names.at(i - 1) + " is at most " + names.at(i));
        }
    }
    if (auto *tool = qobject_cast<const GradientTool *>(widget)) {
        const auto ramp = tool->getRamp();
        const bool isInside = std::all_of(ramp.begin(), ramp.end(), [](const auto &stop) {
            return stop.first >= 0.0 && stop.first <= 1.0;
        });
        if (!isInside || ramp.size() < 2 || tool->getColorTable().size() != 256)
            return "two stops or more, from 0 to 1";
    }
    return {};
}

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> all = makeSubjects();
    return all;
}
