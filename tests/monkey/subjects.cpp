#include "subjects.h"

#include <nocturne/CheckBox>
#include <nocturne/CheckComboBox>
#include <nocturne/ClickableLabel>
#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/ColorToolButton>
#include <nocturne/ComboBox>
#include <nocturne/ComboBoxDelegate>
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
#include <nocturne/QBalloonTip>
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
#include <nocturne/SplitterHandle>
#include <nocturne/StatusBar>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>
#include <nocturne/TreeWidget>
#include <nocturne/Widget>

#include <QtCore/QStringListModel>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QVBoxLayout>

#include <QAction>

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

/// One of \a calls, by the dice.
template <typename... Calls>
void oneOf(Dice &dice, Calls... calls)
{
    const std::function<void()> all[] = {calls...};
    all[dice.roll(static_cast<int>(sizeof...(calls)))]();
}

QString wrongUnless(bool right, const char *promise)
{
    return right ? QString() : QStringLiteral("broken promise: ") + QLatin1String(promise);
}

template <typename Widget, typename Call, typename Check>
Subject subject(const char *name, Call call, Check check)
{
    const auto create = []() -> QWidget * {
        if constexpr (std::is_base_of_v<QSlider, Widget>)
            return new Widget(Qt::Horizontal, nullptr);
        else
            return new Widget;
    };
    return {name, create, [call](QWidget *w, Dice &dice) { call(static_cast<Widget *>(w), dice); },
            [check](QWidget *w) { return check(static_cast<Widget *>(w)); }};
}

template <typename Widget, typename Call>
Subject subject(const char *name, Call call)
{
    return subject<Widget>(name, call, [](Widget *) { return QString(); });
}

template <typename Widget>
Subject subject(const char *name)
{
    return subject<Widget>(name, [](Widget *, Dice &) {});
}

template <typename List>
void changeList(List *list, Dice &dice)
{
    oneOf(
        dice, [&] { list->addItem(dice.text()); },
        [&] {
            for (int i = 0; i < 30; ++i)
                list->addItem(QString::number(i));
        },
        [&] { delete list->takeItem(dice.roll(list->count() + 1)); }, [&] { list->clear(); },
        [&] { list->setCurrentRow(dice.extremeInt()); },
        [&] {
            list->setSelectionMode(static_cast<QAbstractItemView::SelectionMode>(dice.roll(5)));
        },
        [&] { list->setViewMode(dice.coin() ? QListView::IconMode : QListView::ListMode); },
        [&] { list->setDragDropMode(static_cast<QAbstractItemView::DragDropMode>(dice.roll(5))); },
        [&] { list->setLayoutDirection(dice.coin() ? Qt::LeftToRight : Qt::RightToLeft); },
        [&] { list->scrollToBottom(); }, [&] { list->setItemDelegate(new ItemDelegate(list)); },
        [&] {
            if (QListWidgetItem *item = list->item(dice.roll(list->count() + 1)))
                item->setCheckState(dice.coin() ? Qt::Checked : Qt::Unchecked);
        });
}

void changeTree(TreeWidget *tree, Dice &dice)
{
    oneOf(
        dice, [&] { tree->addTopLevelItem(new QTreeWidgetItem({dice.text()})); },
        [&] {
            auto *item = new QTreeWidgetItem(tree, {dice.text()});
            for (int i = 0; i < 20; ++i)
                item->addChild(new QTreeWidgetItem({QString::number(i)}));
            item->setExpanded(dice.coin());
        },
        [&] { delete tree->topLevelItem(dice.roll(tree->topLevelItemCount() + 1)); },
        [&] { tree->clear(); }, [&] { tree->setColumnCount(dice.roll(5)); },
        [&] { tree->expandAll(); }, [&] { tree->collapseAll(); },
        [&] { tree->setHeaderHidden(dice.coin()); }, [&] { tree->scrollToBottom(); },
        [&] {
            tree->setVerticalScrollMode(dice.coin() ? QAbstractItemView::ScrollPerItem
                                                    : QAbstractItemView::ScrollPerPixel);
        });
}

template <typename Combo>
void changeCombo(Combo *combo, Dice &dice)
{
    oneOf(
        dice, [&] { combo->addItem(dice.text()); }, [&] { combo->clear(); },
        [&] { combo->removeItem(dice.roll(combo->count() + 1)); },
        [&] { combo->setCurrentIndex(dice.extremeInt()); },
        [&] { combo->setEditable(dice.coin()); }, [&] { combo->showPopup(); },
        [&] { combo->hidePopup(); }, [&] { combo->insertSeparator(dice.roll(5)); });
}

QString checkRange(RangeSlider *slider)
{
    return wrongUnless(slider->minimumValue() <= slider->maximumValue(),
                       "the range handles are ordered");
}

QString checkSpan(SpanSlider *slider)
{
    return wrongUnless(slider->lowerValue() <= slider->upperValue()
                           && slider->lowerValue() >= slider->minimum()
                           && slider->upperValue() <= slider->maximum(),
                       "the span is ordered and inside the slider's range");
}

QString checkRing(RoundProgressBar *ring)
{
    return wrongUnless(ring->minimum() <= ring->maximum() && ring->value() >= ring->minimum()
                           && ring->value() <= ring->maximum(),
                       "the value is inside the range");
}

QString checkGradient(GradientTool *tool)
{
    const auto ramp = tool->getRamp();
    bool inside = ramp.size() >= 2;
    for (const auto &stop : ramp)
        inside = inside && stop.first >= 0.0 && stop.first <= 1.0;
    return wrongUnless(inside && tool->getColorTable().size() == 256,
                       "two stops or more, from 0 to 1");
}

std::vector<Subject> makeSubjects()
{
    return {
        subject<CheckBox>("CheckBox", [](CheckBox *w, Dice &d) { w->setText(d.text()); }),
        subject<CheckComboBox>("CheckComboBox",
                               [](CheckComboBox *w, Dice &d) {
                                   oneOf(
                                       d,
                                       [&] {
                                           w->addCheckItem(d.text(), d.roll(9),
                                                           static_cast<Qt::CheckState>(d.roll(3)));
                                       },
                                       [&] { w->setNoneCheckedText(d.text()); },
                                       [&] { w->setAllCheckedText(d.text()); },
                                       [&] { w->showPopup(); }, [&] { w->hidePopup(); },
                                       [&] { w->clear(); });
                               }),
        subject<ClickableLabel>("ClickableLabel",
                                [](ClickableLabel *w, Dice &d) { w->setText(d.text()); }),
        subject<ColorBar>("ColorBar",
                          [](ColorBar *w, Dice &d) {
                              oneOf(
                                  d, [&] { w->setColor(colorBy(d)); },
                                  [&] { w->setElipse(d.coin()); }, [&] { w->startFlicker(); },
                                  [&] { w->stopFlicker(); });
                          }),
        subject<ColorButton>("ColorButton",
                             [](ColorButton *w, Dice &d) {
                                 oneOf(
                                     d, [&] { w->setColor(colorBy(d)); },
                                     [&] { w->setRealtimeChange(d.coin()); });
                             }),
        subject<ColorToolButton>("ColorToolButton",
                                 [](ColorToolButton *w, Dice &d) { w->setText(d.text()); }),
        subject<ComboBox>("ComboBox",
                          [](ComboBox *w, Dice &d) {
                              if (d.coin())
                                  changeCombo(w, d);
                              else
                                  oneOf(
                                      d, [&] { w->addParentItem(d.text()); },
                                      [&] { w->addChildItem(d.text(), d.roll(9)); });
                          }),
        subject<ComboBoxListView>(
            "ComboBoxListView",
            [](ComboBoxListView *w, Dice &d) {
                delete w->model();
                w->setModel(new QStringListModel(
                    d.coin() ? QStringList{d.text(), d.text()} : QStringList(), w));
            }),
        subject<ComboFileChooser>("ComboFileChooser",
                                  [](ComboFileChooser *w, Dice &d) {
                                      oneOf(
                                          d, [&] { w->addItem(d.text()); }, [&] { w->clear(); },
                                          [&] { w->setFileName(d.text()); },
                                          [&] { w->setLastSelectedDir(d.text()); });
                                  }),
        subject<CroppingLabel>(
            "CroppingLabel",
            [](CroppingLabel *w, Dice &d) {
                oneOf(
                    d, [&] { w->setText(d.text()); }, [&] { w->setEditable(d.coin()); },
                    [&] { w->setElideMode(static_cast<Qt::TextElideMode>(d.roll(4))); },
                    [&] { w->editBegin(); }, [&] { w->minimizeMaximumWidth(); });
            }),
        subject<DelayButton>("DelayButton",
                             [](DelayButton *w, Dice &d) {
                                 oneOf(
                                     d, [&] { w->setDelay(d.roll(20) - 5); },
                                     [&] { w->setCheckable(d.coin()); }, [&] { w->toggle(); });
                             }),
        subject<DelayToolButton>("DelayToolButton",
                                 [](DelayToolButton *w, Dice &d) {
                                     oneOf(
                                         d, [&] { w->setDelay(d.roll(20) - 5); },
                                         [&] { w->setCheckable(d.coin()); }, [&] { w->toggle(); });
                                 }),
        subject<Dial>("Dial", [](Dial *w, Dice &d) { w->setRange(d.rangeEnd(), d.rangeEnd()); }),
        subject<FileChooser>("FileChooser",
                             [](FileChooser *w, Dice &d) {
                                 oneOf(
                                     d, [&] { w->setFileName(d.text()); },
                                     [&] {
                                         w->setMode(d.coin() ? FileChooser::OpenFile
                                                             : FileChooser::OpenDirectory);
                                     });
                             }),
        subject<FontComboBox>("FontComboBox",
                              [](FontComboBox *w, Dice &d) {
                                  oneOf(
                                      d, [&] { w->showPopup(); }, [&] { w->hidePopup(); },
                                      [&] { w->setCurrentFont(QFont(d.text())); });
                              }),
        subject<Frame>("Frame",
                       [](Frame *w, Dice &d) {
                           oneOf(
                               d, [&] { w->setFrameShape(static_cast<QFrame::Shape>(d.roll(7))); },
                               [&] {
                                   w->setFrameShadow(static_cast<QFrame::Shadow>(16 << d.roll(3)));
                               });
                       }),
        subject<GradientTool>(
            "GradientTool",
            [](GradientTool *w, Dice &d) {
                oneOf(
                    d, [&] { w->setRamp(rampBy(d)); }, [&] { w->setActiveSlider(d.extremeInt()); },
                    [&] { w->setSliderColor(d.extremeInt(), colorBy(d)); },
                    [&] { w->setAlphaValue(d.extremeDouble()); },
                    [&] { w->setOpacity(d.extremeDouble()); }, [&] { w->colorChange(colorBy(d)); },
                    [&] { w->setCurrentColor(colorBy(d)); }, [&] { w->setSlideUpdate(d.coin()); },
                    [&] { w->setColorChoose(d.coin() ? nullptr : new QColorDialog); },
                    [&] { (void)w->getSliderAlpha(d.extremeInt()); });
            },
            checkGradient),
        subject<GroupBox>("GroupBox",
                          [](GroupBox *w, Dice &d) {
                              oneOf(
                                  d, [&] { w->setTitle(d.text()); },
                                  [&] { w->setCheckable(d.coin()); },
                                  [&] { w->setChecked(d.coin()); }, [&] { new QWidget(w); });
                          }),
        subject<KeySequenceEdit>("KeySequenceEdit",
                                 [](KeySequenceEdit *w, Dice &d) {
                                     const QKeySequence keys(d.extremeInt());
                                     oneOf(
                                         d, [&] { w->setKeySequence(keys); },
                                         [&] { w->setDefaultKeySequence(keys); },
                                         [&] { w->clearKeySequence(); },
                                         [&] { w->defaultKeySequence(); });
                                 }),
        subject<LetterBoxWidget>(
            "LetterBoxWidget",
            [](LetterBoxWidget *w, Dice &d) {
                oneOf(
                    d, [&] { w->setWidget(d.roll(4) == 0 ? nullptr : new QWidget); },
                    [&] { delete w->widget(); },
                    [&] {
                        if (w->widget())
                            w->widget()->setSizeIncrement(d.roll(20), d.roll(20));
                    },
                    [&] { w->setMargin(d.extremeInt()); },
                    [&] { w->setResizeDelay(static_cast<unsigned>(d.roll(9))); },
                    [&] { w->setBackgroundColor(colorBy(d)); }, [&] { w->clearBackgroundColor(); },
                    [&] { w->resizeWidget(); });
            }),
        subject<LineEdit>("LineEdit", [](LineEdit *w, Dice &d) { w->setText(d.text()); }),
        subject<LineEditButton>("LineEditButton"),
        subject<ListView>("ListView",
                          [](ListView *w, Dice &d) {
                              delete w->model();
                              w->setModel(new QStringListModel({d.text(), d.text()}, w));
                          }),
        subject<ListWidget>(
            "ListWidget",
            [](ListWidget *w, Dice &d) {
                if (d.coin())
                    changeList(w, d);
                else
                    oneOf(
                        d, [&] { w->shadow(d.coin()); },
                        [&] { w->setViewportMargins(d.roll(9), d.roll(9), d.roll(9), d.roll(9)); },
                        [&] { (void)w->findItem(d.text()); });
            }),
        subject<Menu>("Menu",
                      [](Menu *w, Dice &d) {
                          oneOf(
                              d, [&] { w->addAction(d.text()); }, [&] { w->clear(); },
                              [&] { w->addMenu(d.text())->addAction(d.text()); },
                              [&] { w->addSeparator(); }, [&] { w->popup(QPoint(5, 5)); },
                              [&] { w->close(); });
                      }),
        subject<MidiSequenceEdit>(
            "MidiSequenceEdit",
            [](MidiSequenceEdit *w, Dice &d) {
                static QMidiMessage edited;
                QMidiMessage message = messageBy(d);
                oneOf(
                    d, [&] { w->setKeySequence(d.coin() ? &edited : nullptr); },
                    [&] { w->updateKeySequence(&message); }, [&] { w->updateKeySequence(nullptr); },
                    [&] { w->restoreKeySequence(); }, [&] { w->updateOldKeySequence(); },
                    [&] { w->clearKeySequence(); });
            }),
        subject<ProgressBar>("ProgressBar",
                             [](ProgressBar *w, Dice &d) {
                                 oneOf(
                                     d, [&] { w->setRange(d.rangeEnd(), d.rangeEnd()); },
                                     [&] { w->setValue(d.extremeInt()); },
                                     [&] { w->setFullSize(d.coin()); });
                             }),
        subject<ProgressIndicator>("ProgressIndicator",
                                   [](ProgressIndicator *w, Dice &d) {
                                       oneOf(
                                           d, [&] { w->startAnimation(); },
                                           [&] { w->stopAnimation(); },
                                           [&] { w->setAnimationDelay(d.roll(30) - 5); },
                                           [&] { w->setColor(colorBy(d)); });
                                   }),
        subject<RadioButton>("RadioButton", [](RadioButton *w, Dice &d) { w->setText(d.text()); }),
        subject<RangeSlider>(
            "RangeSlider",
            [](RangeSlider *w, Dice &d) {
                const int a = d.extremeInt();
                const int b = d.extremeInt();
                oneOf(
                    d, [&] { w->setRange(a / 4, b / 4); },
                    [&] { w->setValues(a, b, d.extremeInt()); },
                    [&] { w->setPositions(a, b, d.extremeInt()); }, [&] { w->setMinimumValue(a); },
                    [&] { w->setMaximumValue(a); }, [&] { w->setMainValue(a); },
                    [&] { w->setEnableRange(d.coin()); }, [&] { w->setSymmetricMoves(d.coin()); },
                    [&] { w->positionChange(a); },
                    [&] { w->setOrientation(d.coin() ? Qt::Horizontal : Qt::Vertical); },
                    [&] { w->setFrameRate(d.extremeDouble()); },
                    [&] { w->setHandleToolTip(d.text()); }, [&] { w->setTracking(d.coin()); },
                    [&] { w->setInvertedAppearance(d.coin()); });
            },
            checkRange),
        subject<RoundProgressBar>(
            "RoundProgressBar",
            [](RoundProgressBar *w, Dice &d) {
                const double a = d.extremeDouble();
                oneOf(
                    d, [&] { w->setRange(a, d.extremeDouble()); }, [&] { w->setValue(a); },
                    [&] { w->setMinimum(a); }, [&] { w->setMaximum(a); },
                    [&] { w->setNullPosition(a); }, [&] { w->setOutlinePenWidth(a); },
                    [&] { w->setDataPenWidth(a); }, [&] { w->setDecimals(d.roll(400) - 50); },
                    [&] { w->setFormat(d.text()); }, [&] { w->setDataColors(rampBy(d)); },
                    [&] { w->setBarStyle(static_cast<RoundProgressBar::BarStyle>(d.roll(3))); },
                    [&] {
                        w->setTitle(d.text(), QFont(), QFont(QString(), 1 + d.roll(99)), a,
                                    d.coin());
                    },
                    [&] { (void)w->humanReadableSize(qint64(d.extremeInt()) << d.roll(32)); });
            },
            checkRing),
        subject<SearchLineEdit>("SearchLineEdit",
                                [](SearchLineEdit *w, Dice &d) { w->setText(d.text()); }),
        subject<SimpleListWidget>("SimpleListWidget", changeList<SimpleListWidget>),
        subject<SlideCheckBox>("SlideCheckBox", [](SlideCheckBox *w, Dice &) { w->toggle(); }),
        subject<Slider>(
            "Slider",
            [](Slider *w, Dice &d) {
                const int a = d.extremeInt();
                oneOf(
                    d, [&] { w->setRange(a / 4, d.rangeEnd()); }, [&] { w->setValue(a); },
                    [&] { w->positionChange(a); }, [&] { w->setEnableDirectJump(d.coin()); },
                    [&] { w->setKeyPressed(d.coin()); },
                    [&] { w->setOrientation(d.coin() ? Qt::Horizontal : Qt::Vertical); });
            }),
        subject<SpanSlider>(
            "SpanSlider",
            [](SpanSlider *w, Dice &d) {
                const int a = d.extremeInt();
                oneOf(
                    d, [&] { w->setRange(a / 4, d.rangeEnd()); },
                    [&] { w->setSpan(a, d.extremeInt()); }, [&] { w->setLowerValue(a); },
                    [&] { w->setUpperValue(a); }, [&] { w->setLowerPosition(a); },
                    [&] { w->setUpperPosition(a); }, [&] { w->swapControls(); },
                    [&] {
                        w->setHandleMovementMode(
                            static_cast<SpanSlider::HandleMovementMode>(d.roll(3)));
                    },
                    [&] {
                        w->triggerAction(static_cast<QAbstractSlider::SliderAction>(d.roll(8)),
                                         d.coin());
                    },
                    [&] { w->setTracking(d.coin()); },
                    [&] { w->setOrientation(d.coin() ? Qt::Horizontal : Qt::Vertical); });
            },
            checkSpan),
        subject<SpinBox>("SpinBox",
                         [](SpinBox *w, Dice &d) {
                             oneOf(
                                 d, [&] { w->setRange(d.rangeEnd(), d.rangeEnd()); },
                                 [&] { w->setValue(d.extremeDouble()); },
                                 [&] { w->setValue(d.extremeDouble(), d.coin()); });
                         }),
        subject<Splitter>("Splitter",
                          [](Splitter *w, Dice &d) {
                              oneOf(
                                  d, [&] { w->addWidget(new QWidget); },
                                  [&] { delete w->widget(d.roll(w->count() + 1)); },
                                  [&] {
                                      w->setOrientation(d.coin() ? Qt::Horizontal : Qt::Vertical);
                                  },
                                  [&] {
                                      w->setSizes({d.extremeInt(), d.extremeInt()});
                                  },
                                  [&] { w->setHandleWidth(d.roll(40) - 5); });
                          }),
        subject<StatusBar>("StatusBar",
                           [](StatusBar *w, Dice &d) {
                               w->showMessage(d.text(), d.roll(20));
                               w->setSizeGripEnabled(d.coin());
                           }),
        subject<TabBar>("TabBar",
                        [](TabBar *w, Dice &d) {
                            oneOf(
                                d, [&] { w->addTab(d.text()); },
                                [&] { w->removeTab(d.roll(w->count() + 1)); },
                                [&] { w->setWidth(d.roll(3000) - 100); },
                                [&] { w->setShape(static_cast<QTabBar::Shape>(d.roll(8))); },
                                [&] { w->setTabsClosable(d.coin()); },
                                [&] { w->setMovable(d.coin()); },
                                [&] { w->setCurrentIndex(d.extremeInt()); });
                        }),
        subject<TabWidget>(
            "TabWidget",
            [](TabWidget *w, Dice &d) {
                oneOf(
                    d, [&] { w->addTab(new QWidget, d.text()); },
                    [&] { delete w->widget(d.roll(w->count() + 1)); },
                    [&] { w->setTabBarWidth(d.roll(3000) - 100); },
                    [&] { w->setTabPosition(static_cast<QTabWidget::TabPosition>(d.roll(4))); },
                    [&] { w->setTabsClosable(d.coin()); }, [&] { w->setMovable(d.coin()); });
            }),
        subject<TreeWidget>("TreeWidget", changeTree),
        subject<Widget>("Widget"),
    };
}

} // namespace

int Dice::extremeInt()
{
    switch (roll(8)) {
    case 0:
        return std::numeric_limits<int>::min();
    case 1:
        return std::numeric_limits<int>::max();
    case 2:
        return -1;
    case 3:
        return 0;
    case 4:
        return roll(1000000) - 500000;
    default:
        return roll(200) - 50;
    }
}

double Dice::extremeDouble()
{
    switch (roll(10)) {
    case 0:
        return std::numeric_limits<double>::quiet_NaN();
    case 1:
        return std::numeric_limits<double>::infinity();
    case 2:
        return -std::numeric_limits<double>::infinity();
    case 3:
        return std::numeric_limits<double>::max();
    case 4:
        return -1e-300;
    default:
        return roll(2000) / 1000.0 - 0.5;
    }
}

QString Dice::text()
{
    switch (roll(8)) {
    case 0:
        return QString();
    case 1:
        return QString(500, QLatin1Char('W'));
    case 2:
        return QStringLiteral("&Mnemonic\tCtrl+M");
    case 3:
        return QStringLiteral("two\nlines <b>bold</b> %v %p %byte %connect");
    case 4:
        return QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xf0\x9f\x8e\xac e\xcc\x81");
    case 5:
        return QString(QChar(0xd800)) + QChar(0) + QLatin1Char('x');
    default:
        return QStringLiteral("Clip %1").arg(roll(100));
    }
}

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> all = [] {
        std::vector<Subject> made = makeSubjects();
        for (Subject &subject : made)
            subject.onlyDeletedLater = qstrcmp(subject.name, "CroppingLabel") == 0;
        return made;
    }();
    return all;
}
