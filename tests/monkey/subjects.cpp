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

#include <QtCore/QStringListModel>
#include <QtWidgets/QColorDialog>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace {

QMidiMessage messageBy(Dice &dice)
{
    QMidiMessage message;
    message.setType(dice.extremeInt());
    message.setChannel(dice.extremeInt());
    message.setKey(dice.extremeInt());
    message.setValue(dice.extremeInt());
    return message;
}

QColor colorBy(Dice &dice)
{
    return dice.roll(8) == 0
               ? QColor()
               : QColor(dice.roll(256), dice.roll(256), dice.roll(256), dice.roll(256));
}

QVector<QPair<double, QColor>> rampBy(Dice &dice)
{
    QVector<QPair<double, QColor>> ramp;
    for (int i = dice.roll(6); i > 0; --i)
        ramp << qMakePair(dice.extremeDouble(), colorBy(dice));
    return ramp;
}

/// An argument of that type, by the dice.
template <typename Value>
Value random(Dice &dice)
{
    if constexpr (std::is_same_v<Value, bool>)
        return dice.coin();
    else if constexpr (std::is_enum_v<Value>)
        return static_cast<Value>(dice.roll(9));
    else if constexpr (std::is_integral_v<Value>)
        return static_cast<Value>(dice.extremeInt());
    else if constexpr (std::is_floating_point_v<Value>)
        return static_cast<Value>(dice.extremeDouble());
    else if constexpr (std::is_same_v<Value, QString>)
        return dice.text();
    else if constexpr (std::is_same_v<Value, QColor>)
        return colorBy(dice);
    else if constexpr (std::is_same_v<Value, QFont>)
        return QFont(dice.text(), 1 + dice.roll(99));
    else if constexpr (std::is_same_v<Value, QWidget *>)
        return dice.roll(4) == 0 ? nullptr : new QWidget;
    else if constexpr (std::is_same_v<Value, QColorDialog *>)
        return dice.coin() ? nullptr : new QColorDialog;
    else
        return rampBy(dice);
}

template <typename Widget>
using Call = std::function<void(Widget *, Dice &)>;

/// Calls \a member with arguments by the dice.
template <typename Widget, typename Result, typename Class, typename... Arguments>
Call<Widget> toCall(Result (Class::*member)(Arguments...))
{
    return [member](Widget *widget, Dice &dice) {
        (widget->*member)(random<std::decay_t<Arguments>>(dice)...);
    };
}
template <typename Widget, typename Result, typename Class, typename... Arguments>
Call<Widget> toCall(Result (Class::*member)(Arguments...) const)
{
    return [member](Widget *widget, Dice &dice) {
        (void)(widget->*member)(random<std::decay_t<Arguments>>(dice)...);
    };
}
template <typename Widget, typename Work>
Call<Widget> toCall(Work work)
{
    return work;
}

using Promise = const char *;

/// One of the calls, members of the class or functions of widget and dice, is made at a time;
/// \a promise is kept as long as \a isKept says so.
template <typename Widget, typename Check, typename... Calls>
Subject checked(const char *name, Promise promise, Check isKept, Calls... calls)
{
    const std::vector<Call<Widget>> all{toCall<Widget>(calls)...};
    const auto create = []() -> QWidget * {
        if constexpr (std::is_base_of_v<QSlider, Widget>)
            return new Widget(Qt::Horizontal, nullptr);
        else
            return new Widget;
    };
    const auto call = [all](QWidget *widget, Dice &dice) {
        if (!all.empty())
            all[static_cast<std::size_t>(dice.roll(static_cast<int>(all.size())))](
                static_cast<Widget *>(widget), dice);
    };
    const auto check = [promise, isKept](QWidget *widget) {
        return isKept(static_cast<Widget *>(widget)) ? QString()
                                                     : QString("broken promise: ") + promise;
    };
    return {name, create, call, check};
}

template <typename Widget, typename... Calls>
Subject subject(const char *name, Calls... calls)
{
    return checked<Widget>(
        name, "", [](Widget *) { return true; }, calls...);
}

// Calls that several classes share, or that need more than one argument's dice.

template <typename Widget>
void setRange(Widget *widget, Dice &dice)
{
    widget->setRange(dice.rangeEnd(), dice.rangeEnd());
}

template <typename Widget>
void turn(Widget *widget, Dice &dice)
{
    widget->setOrientation(dice.coin() ? Qt::Horizontal : Qt::Vertical);
}

template <typename Tabs>
void addTab(Tabs *tabs, Dice &dice)
{
    if constexpr (std::is_same_v<Tabs, TabBar>)
        tabs->addTab(dice.text());
    else
        tabs->addTab(new QWidget, dice.text());
}

template <typename Container>
void deleteOne(Container *container, Dice &dice)
{
    delete container->widget(dice.roll(container->count() + 1));
}

template <typename Combo>
void addItem(Combo *combo, Dice &dice)
{
    combo->addItem(dice.text());
}

template <typename View>
void setModel(View *view, Dice &dice)
{
    delete view->model();
    view->setModel(new QStringListModel(
        dice.coin() ? QStringList{dice.text(), dice.text()} : QStringList(), view));
}

template <typename List, typename... Calls>
Subject list(const char *name, Calls... calls)
{
    return subject<List>(
        name, addItem<List>,
        [](List *list, Dice &) {
            for (int i = 0; i < 30; ++i)
                list->addItem(QString::number(i));
        },
        [](List *list, Dice &dice) { delete list->takeItem(dice.roll(list->count() + 1)); },
        [](List *list, Dice &) { list->setItemDelegate(new ItemDelegate(list)); },
        [](List *list, Dice &dice) {
            if (QListWidgetItem *item = list->item(dice.roll(list->count() + 1)))
                item->setCheckState(dice.coin() ? Qt::Checked : Qt::Unchecked);
        },
        [](List *list, Dice &dice) {
            list->setSelectionMode(static_cast<QAbstractItemView::SelectionMode>(dice.roll(5)));
            list->setDragDropMode(static_cast<QAbstractItemView::DragDropMode>(dice.roll(5)));
            list->setViewMode(dice.coin() ? QListView::IconMode : QListView::ListMode);
        },
        &List::clear, QOverload<int>::of(&List::setCurrentRow), &List::scrollToBottom, calls...);
}

std::vector<Subject> makeSubjects()
{
    return {
        subject<CheckBox>("CheckBox", &CheckBox::setText),
        subject<CheckComboBox>(
            "CheckComboBox",
            [](CheckComboBox *w, Dice &d) {
                w->addCheckItem(d.text(), d.roll(9), static_cast<Qt::CheckState>(d.roll(3)));
            },
            &CheckComboBox::setNoneCheckedText, &CheckComboBox::setAllCheckedText,
            &CheckComboBox::showPopup, &CheckComboBox::hidePopup, &CheckComboBox::clear),
        subject<ClickableLabel>("ClickableLabel", &ClickableLabel::setText),
        subject<ColorBar>("ColorBar", &ColorBar::setColor, &ColorBar::setElipse,
                          &ColorBar::startFlicker, &ColorBar::stopFlicker),
        subject<ColorButton>("ColorButton", &ColorButton::setColor,
                             &ColorButton::setRealtimeChange),
        subject<ColorToolButton>("ColorToolButton", &ColorToolButton::setText),
        subject<ComboBox>(
            "ComboBox", addItem<ComboBox>, &ComboBox::addParentItem,
            [](ComboBox *w, Dice &d) { w->addChildItem(d.text(), d.roll(9)); },
            [](ComboBox *w, Dice &d) { w->removeItem(d.roll(w->count() + 1)); },
            [](ComboBox *w, Dice &d) { w->insertSeparator(d.roll(5)); }, &ComboBox::clear,
            &ComboBox::setCurrentIndex, &ComboBox::setEditable, &ComboBox::showPopup,
            &ComboBox::hidePopup),
        subject<ComboBoxListView>("ComboBoxListView", setModel<ComboBoxListView>),
        subject<ComboFileChooser>("ComboFileChooser", addItem<ComboFileChooser>,
                                  &ComboFileChooser::clear, &ComboFileChooser::setFileName,
                                  &ComboFileChooser::setLastSelectedDir),
        subject<CroppingLabel>("CroppingLabel", &CroppingLabel::setText,
                               &CroppingLabel::setEditable, &CroppingLabel::setElideMode,
                               &CroppingLabel::editBegin, &CroppingLabel::minimizeMaximumWidth),
        subject<DelayButton>(
            "DelayButton", [](DelayButton *w, Dice &d) { w->setDelay(d.roll(20) - 5); },
            &DelayButton::setCheckable, &DelayButton::toggle),
        subject<DelayToolButton>(
            "DelayToolButton", [](DelayToolButton *w, Dice &d) { w->setDelay(d.roll(20) - 5); },
            &DelayToolButton::setCheckable, &DelayToolButton::toggle),
        subject<Dial>("Dial", setRange<Dial>),
        subject<FileChooser>("FileChooser", &FileChooser::setFileName, &FileChooser::setMode),
        subject<FontComboBox>("FontComboBox", &FontComboBox::showPopup, &FontComboBox::hidePopup,
                              &FontComboBox::setCurrentFont),
        subject<Frame>("Frame", &Frame::setFrameShape,
                       [](Frame *w, Dice &d) {
                           w->setFrameShadow(static_cast<QFrame::Shadow>(16 << d.roll(3)));
                       }),
        checked<GradientTool>(
            "GradientTool", "two stops or more, from 0 to 1",
            [](GradientTool *w) {
                const auto ramp = w->getRamp();
                return ramp.size() >= 2 && w->getColorTable().size() == 256
                       && std::all_of(ramp.begin(), ramp.end(), [](const auto &stop) {
                              return stop.first >= 0.0 && stop.first <= 1.0;
                          });
            },
            &GradientTool::setRamp, &GradientTool::setActiveSlider, &GradientTool::setSliderColor,
            &GradientTool::setAlphaValue, &GradientTool::setOpacity, &GradientTool::colorChange,
            &GradientTool::setCurrentColor, &GradientTool::setSlideUpdate,
            &GradientTool::setColorChoose, &GradientTool::getSliderAlpha),
        subject<GroupBox>("GroupBox", &GroupBox::setTitle, &GroupBox::setCheckable,
                          &GroupBox::setChecked, [](GroupBox *w, Dice &) { new QWidget(w); }),
        subject<KeySequenceEdit>(
            "KeySequenceEdit",
            [](KeySequenceEdit *w, Dice &d) { w->setKeySequence(d.extremeInt()); },
            [](KeySequenceEdit *w, Dice &d) { w->setDefaultKeySequence(d.extremeInt()); },
            &KeySequenceEdit::clearKeySequence,
            [](KeySequenceEdit *w, Dice &) { w->defaultKeySequence(); }),
        subject<LetterBoxWidget>(
            "LetterBoxWidget", &LetterBoxWidget::setWidget,
            [](LetterBoxWidget *w, Dice &) { delete w->widget(); },
            [](LetterBoxWidget *w, Dice &d) {
                if (w->widget())
                    w->widget()->setSizeIncrement(d.roll(20), d.roll(20));
            },
            &LetterBoxWidget::setMargin,
            [](LetterBoxWidget *w, Dice &d) { w->setResizeDelay(unsigned(d.roll(9))); },
            &LetterBoxWidget::setBackgroundColor, &LetterBoxWidget::clearBackgroundColor,
            &LetterBoxWidget::resizeWidget),
        subject<LineEdit>("LineEdit", &LineEdit::setText),
        subject<LineEditButton>("LineEditButton"),
        subject<ListView>("ListView", setModel<ListView>),
        list<ListWidget>("ListWidget", &ListWidget::shadow, &ListWidget::findItem,
                         [](ListWidget *w, Dice &d) {
                             w->setViewportMargins(d.roll(9), d.roll(9), d.roll(9), d.roll(9));
                         }),
        subject<Menu>(
            "Menu", [](Menu *w, Dice &d) { w->addAction(d.text()); }, &Menu::clear,
            [](Menu *w, Dice &d) { w->addMenu(d.text())->addAction(d.text()); },
            [](Menu *w, Dice &) { w->popup(QPoint(5, 5)); }, &Menu::close),
        subject<MidiSequenceEdit>(
            "MidiSequenceEdit",
            [](MidiSequenceEdit *w, Dice &d) {
                static QMidiMessage edited;
                w->setKeySequence(d.coin() ? &edited : nullptr);
            },
            [](MidiSequenceEdit *w, Dice &d) {
                QMidiMessage message = messageBy(d);
                w->updateKeySequence(d.roll(4) ? &message : nullptr);
            },
            &MidiSequenceEdit::restoreKeySequence, &MidiSequenceEdit::updateOldKeySequence,
            &MidiSequenceEdit::clearKeySequence),
        subject<ProgressBar>("ProgressBar", setRange<ProgressBar>, &ProgressBar::setValue,
                             &ProgressBar::setFullSize),
        subject<ProgressIndicator>(
            "ProgressIndicator", &ProgressIndicator::startAnimation,
            &ProgressIndicator::stopAnimation, &ProgressIndicator::setColor,
            [](ProgressIndicator *w, Dice &d) { w->setAnimationDelay(d.roll(30) - 5); }),
        subject<RadioButton>("RadioButton", &RadioButton::setText),
        checked<RangeSlider>(
            "RangeSlider", "the range handles are ordered",
            [](RangeSlider *w) { return w->minimumValue() <= w->maximumValue(); },
            setRange<RangeSlider>, turn<RangeSlider>, &RangeSlider::setValues,
            &RangeSlider::setPositions, &RangeSlider::setMinimumValue,
            &RangeSlider::setMaximumValue, &RangeSlider::setMainValue, &RangeSlider::setEnableRange,
            &RangeSlider::setSymmetricMoves, &RangeSlider::positionChange,
            &RangeSlider::setFrameRate, &RangeSlider::setHandleToolTip, &RangeSlider::setTracking,
            &RangeSlider::setInvertedAppearance),
        checked<RoundProgressBar>(
            "RoundProgressBar", "the value is inside the range",
            [](RoundProgressBar *w) {
                return w->minimum() <= w->maximum() && w->value() >= w->minimum()
                       && w->value() <= w->maximum();
            },
            QOverload<double, double>::of(&RoundProgressBar::setRange),
            QOverload<double>::of(&RoundProgressBar::setValue),
            QOverload<double>::of(&RoundProgressBar::setMinimum),
            QOverload<double>::of(&RoundProgressBar::setMaximum),
            &RoundProgressBar::setNullPosition, &RoundProgressBar::setOutlinePenWidth,
            &RoundProgressBar::setDataPenWidth, &RoundProgressBar::setFormat,
            &RoundProgressBar::setDataColors, &RoundProgressBar::setBarStyle,
            &RoundProgressBar::setTitle,
            [](RoundProgressBar *w, Dice &d) { w->setDecimals(d.roll(400) - 50); },
            [](RoundProgressBar *w, Dice &d) {
                (void)w->humanReadableSize(qint64(d.extremeInt()) << d.roll(32));
            }),
        subject<SearchLineEdit>("SearchLineEdit", &SearchLineEdit::setText),
        list<SimpleListWidget>("SimpleListWidget"),
        subject<SlideCheckBox>("SlideCheckBox", &SlideCheckBox::toggle),
        subject<Slider>("Slider", setRange<Slider>, turn<Slider>, &Slider::setValue,
                        &Slider::positionChange, &Slider::setEnableDirectJump,
                        &Slider::setKeyPressed),
        checked<SpanSlider>(
            "SpanSlider", "the span is ordered and inside the slider's range",
            [](SpanSlider *w) {
                return w->lowerValue() <= w->upperValue() && w->lowerValue() >= w->minimum()
                       && w->upperValue() <= w->maximum();
            },
            setRange<SpanSlider>, turn<SpanSlider>, &SpanSlider::setSpan,
            &SpanSlider::setLowerValue, &SpanSlider::setUpperValue, &SpanSlider::setLowerPosition,
            &SpanSlider::setUpperPosition, &SpanSlider::swapControls,
            &SpanSlider::setHandleMovementMode, &SpanSlider::triggerAction,
            &SpanSlider::setTracking),
        subject<SpinBox>("SpinBox", setRange<SpinBox>, QOverload<double>::of(&SpinBox::setValue),
                         QOverload<double, bool>::of(&SpinBox::setValue)),
        subject<Splitter>(
            "Splitter", [](Splitter *w, Dice &) { w->addWidget(new QWidget); }, deleteOne<Splitter>,
            turn<Splitter>,
            [](Splitter *w, Dice &d) {
                w->setSizes({d.extremeInt(), d.extremeInt()});
            },
            [](Splitter *w, Dice &d) { w->setHandleWidth(d.roll(40) - 5); }),
        subject<StatusBar>(
            "StatusBar", [](StatusBar *w, Dice &d) { w->showMessage(d.text(), d.roll(20)); },
            &StatusBar::setSizeGripEnabled),
        subject<TabBar>(
            "TabBar", addTab<TabBar>,
            [](TabBar *w, Dice &d) { w->removeTab(d.roll(w->count() + 1)); },
            [](TabBar *w, Dice &d) { w->setWidth(d.roll(3000) - 100); },
            [](TabBar *w, Dice &d) { w->setShape(static_cast<QTabBar::Shape>(d.roll(8))); },
            &TabBar::setTabsClosable, &TabBar::setMovable, &TabBar::setCurrentIndex),
        subject<TabWidget>(
            "TabWidget", addTab<TabWidget>, deleteOne<TabWidget>,
            [](TabWidget *w, Dice &d) { w->setTabBarWidth(d.roll(3000) - 100); },
            [](TabWidget *w, Dice &d) {
                w->setTabPosition(static_cast<QTabWidget::TabPosition>(d.roll(4)));
            },
            &TabWidget::setTabsClosable, &TabWidget::setMovable),
        subject<TreeWidget>(
            "TreeWidget",
            [](TreeWidget *w, Dice &d) {
                auto *item = new QTreeWidgetItem(w, {d.text()});
                for (int i = d.coin() ? 20 : 0; i > 0; --i)
                    item->addChild(new QTreeWidgetItem({QString::number(i)}));
                item->setExpanded(d.coin());
            },
            [](TreeWidget *w, Dice &d) {
                delete w->topLevelItem(d.roll(w->topLevelItemCount() + 1));
            },
            [](TreeWidget *w, Dice &d) { w->setColumnCount(d.roll(5)); },
            [](TreeWidget *w, Dice &d) {
                w->setVerticalScrollMode(d.coin() ? QAbstractItemView::ScrollPerItem
                                                  : QAbstractItemView::ScrollPerPixel);
            },
            &TreeWidget::clear, &TreeWidget::expandAll, &TreeWidget::collapseAll,
            &TreeWidget::setHeaderHidden, &TreeWidget::scrollToBottom),
        subject<Widget>("Widget"),
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
    static const std::vector<Subject> all = [] {
        std::vector<Subject> made = makeSubjects();
        const QList<QByteArray> late{"ComboFileChooser", "CroppingLabel", "FileChooser",
                                     "FontComboBox",     "ListWidget",    "RangeSlider"};
        for (Subject &subject : made)
            subject.onlyDeletedLater = late.contains(QByteArray(subject.name));
        return made;
    }();
    return all;
}
