#include "gestures.h"

#include <nocturne/CheckComboBox>
#include <nocturne/ComboBox>
#include <nocturne/ComboBoxDelegate>
#include <nocturne/ComboBoxListView>
#include <nocturne/Dial>
#include <nocturne/FontComboBox>

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace {

void addGroups(ComboBox &combo)
{
    combo.addParentItem("Cameras");
    combo.addChildItem("Left", 11);
    combo.addChildItem("Right", 12);
    combo.insertSeparator(3);
    combo.addParentItem("Clips");
    combo.addChildItem("Intro", 21);
}

/// One row of \a combo as its delegate paints it on white.
QImage paintedRow(QComboBox &combo, int row, const QAbstractItemDelegate &delegate,
                  Qt::TextElideMode elide = Qt::ElideRight, int width = 120)
{
    QStyleOptionViewItem option;
    option.initFrom(&combo);
    option.rect = QRect(0, 0, width, 20);
    option.textElideMode = elide;
    option.palette.setColor(QPalette::Text, Qt::black);
    option.palette.setColor(QPalette::Disabled, QPalette::Text, Qt::red);
    const QModelIndex index = combo.model()->index(row, 0);
    option.state.setFlag(QStyle::State_Enabled, index.flags() & Qt::ItemIsEnabled);
    return TestSupport::paintOn({width, 20}, Qt::white, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::TextAntialiasing, false);
        delegate.paint(&painter, option, index);
    });
}

int leftmostInk(const QImage &image)
{
    for (int x = 0; x < image.width(); ++x) {
        if (!TestSupport::isFilled(image, QRect(x, 0, 1, image.height()), Qt::white))
            return x;
    }
    return -1;
}

/// A check combo box with the items A, B and C, and the states it has reported.
class CheckFixture
{
public:
    CheckFixture()
    {
        combo.setNoneCheckedText("none");
        combo.setAllCheckedText("all");
        combo.setUndeterminedText("?");
        for (const char *text : {"A", "B", "C"})
            items << combo.addCheckItem(text, text, Qt::Unchecked);
        QObject::connect(&combo, &CheckComboBox::globalCheckStateChanged, &combo,
                         [this](int state) { states << state; });
        combo.resize(150, 30);
        combo.show();
    }

    QString summary() const { return combo.lineEdit()->text(); }

    CheckComboBox combo;
    QVector<QStandardItem *> items;
    QVector<int> states;
};

} // namespace

class TestComboBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groups()
    {
        ComboBox combo;
        addGroups(combo);
        QString kinds;
        for (int row = 0; row < combo.count(); ++row) {
            const QString kind = combo.itemData(row, Qt::AccessibleDescriptionRole).toString();
            const bool selectable = combo.model()->index(row, 0).flags() & Qt::ItemIsSelectable;
            kinds += kind + (selectable ? "! " : " ");
        }
        QCOMPARE(kinds, QString("parent child! child! separator parent child! "));
        combo.setCurrentIndex(combo.findData(12));
        QCOMPARE(combo.currentData(Qt::DisplayRole).toString(), QString("Right    "));
        // The keys pass headings over.
        combo.show();
        QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(combo.currentIndex(), 5);
        QTest::keyClick(&combo, Qt::Key_Home);
        QCOMPARE(combo.currentIndex(), 1);

        ComboBox other;
        other.addItem("plain");
        other.addChildItem("a child before any parent", 1);
        other.addParentItem("group");
        QCOMPARE(other.count(), 2);
        QVERIFY(other.itemDelegate()->inherits("ComboBoxDelegate"));
    }

    void wheelScrollsTheAreaAround()
    {
        ComboBox grouped;
        addGroups(grouped);
        grouped.setCurrentIndex(1);
        CheckFixture checks;
        FontComboBox fonts;
        Dial dial;
        dial.setValue(40);
        for (QWidget *widget : QVector<QWidget *>{&grouped, &checks.combo, &fonts, &dial}) {
            QWidget content;
            content.resize(200, 2000);
            widget->setParent(&content);
            QScrollArea area;
            area.setWidget(&content);
            area.show();
            const char *property = widget == &dial ? "value" : "currentIndex";
            const QVariant current = widget->property(property);
            QWheelEvent wheel = TestSupport::wheelOver(*widget);
            QSpontaneKeyEvent::setSpontaneous(&wheel); // only the user's events go on to parents
            qApp->notify(widget, &wheel);
            QCOMPARE(widget->property(property), current);
            QVERIFY(area.verticalScrollBar()->value() > 0);
            widget->setParent(nullptr);
            area.takeWidget();
        }
    }

    void delegatePaintsByKind()
    {
        ComboBox combo;
        addGroups(combo);
        combo.addItem("Left    ");
        const ComboBoxDelegate delegate;
        const QItemDelegate plain;
        QCOMPARE(delegate.sizeHint({}, combo.model()->index(3, 0)), QSize(0, 10));
        const QImage separator = paintedRow(combo, 3, delegate);
        QVERIFY(TestSupport::isFilled(separator, QRect(0, 9, 120, 1), Qt::gray));
        QCOMPARE(TestSupport::count(separator, separator.rect(), Qt::white), 19 * 120);
        const QImage heading = paintedRow(combo, 0, delegate);
        QVERIFY(leftmostInk(heading) >= 0 && heading != paintedRow(combo, 0, plain));
        QCOMPARE(TestSupport::count(heading, heading.rect(), Qt::red), 0);
        const QImage other = paintedRow(combo, 6, delegate);
        QCOMPARE(other, paintedRow(combo, 6, plain));
        QCOMPARE(leftmostInk(paintedRow(combo, 1, delegate)),
                 leftmostInk(other) + QFontMetrics(combo.font()).horizontalAdvance("    "));
        // Too narrow a row cuts the text off without dots.
        QCOMPARE(paintedRow(combo, 1, delegate, Qt::ElideRight, 40),
                 paintedRow(combo, 1, delegate, Qt::ElideNone, 40));
    }

    void summaries()
    {
        CheckFixture f;
        QCOMPARE(f.summary(), QString("none"));
        QCOMPARE(f.items.at(1)->data(Qt::UserRole + 1).toString(), QString("B"));
        const auto summaryWith = [&f](int item, Qt::CheckState state) {
            f.items.at(item)->setCheckState(state);
            return f.summary();
        };
        QCOMPARE(summaryWith(2, Qt::Checked), QString("C"));
        QCOMPARE(summaryWith(0, Qt::Checked), QString("A, C"));
        QCOMPARE(summaryWith(1, Qt::Checked), QString("all"));
        QCOMPARE(summaryWith(1, Qt::PartiallyChecked), QString("?"));
        for (QStandardItem *item : f.items)
            item->setCheckState(Qt::Unchecked);
        QCOMPARE(f.states, QVector<int>({1, 1, 2, 3, 3, 1, 0}));

        f.combo.addCheckItem("D", {}, Qt::Checked);
        QCOMPARE(f.summary(), QString("D"));
        QCOMPARE(f.states.size(), 7);
        f.combo.clear();
        QCOMPARE(f.combo.globalCheckState(), 3);
        QCOMPARE(f.summary(), QString("?"));
    }

    void everyPressToggles()
    {
        CheckFixture f;
        QTest::mousePress(f.combo.lineEdit(), Qt::LeftButton);
        QVERIFY(f.combo.view()->isVisible());
        QTest::mouseRelease(f.combo.lineEdit(), Qt::LeftButton);
        QTest::qWait(QApplication::doubleClickInterval() + 5);

        QWidget *popup = f.combo.view()->viewport();
        const QPoint row = f.combo.view()->visualRect(f.items.at(1)->index()).topLeft();
        for (const QPoint &place : {QPoint(10, 8), QPoint(70, 8)}) { // the box and beside it
            const QPoint position = row + place;
            QTest::mouseClick(popup, Qt::LeftButton, {}, position);
            QCOMPARE(f.items.at(1)->checkState(), Qt::Checked);
            // A fast second click arrives as a double click.
            QTest::mouseDClick(popup, Qt::LeftButton, {}, position);
            QCOMPARE(f.items.at(1)->checkState(), Qt::Unchecked);
        }
        QCOMPARE(f.states, QVector<int>({1, 0, 1, 0}));
        f.combo.view()->setCurrentIndex(f.items.at(2)->index());
        QTest::keyClick(f.combo.view(), Qt::Key_Space);
        QCOMPARE(f.items.at(2)->checkState(), Qt::Checked);
        QVERIFY(f.combo.view()->isVisible());
    }

    void theSummaryStays()
    {
        CheckFixture f;
        for (int row : {0, 1})
            f.items.at(row)->setCheckState(Qt::Checked);
        QLineEdit *field = f.combo.lineEdit();
        field->selectAll();
        QVERIFY(!field->hasSelectedText());
        for (Qt::Key key : {Qt::Key_X, Qt::Key_Down, Qt::Key_Return, Qt::Key_Backspace}) {
            QTest::keyClick(field, key);
            QCOMPARE(f.summary(), QString("A, B"));
        }
    }

    void fontPreview()
    {
        for (bool choose : {true, false}) {
            FontComboBox combo;
            if (combo.count() < 3)
                QSKIP("There are too few fonts");
            combo.setCurrentIndex(0);
            combo.show();
            const QString before = combo.currentFont().family(); // need not be in the list
            QStringList previews;
            connect(&combo, &FontComboBox::highlightFontChanged, &combo, [&](const QFont &font) {
                previews << font.family();
                if (combo.view()->isVisible())
                    QCOMPARE(font, QFont(font.family()));
            });
            combo.showPopup();
            previews.clear();
            for (Qt::Key key :
                 {Qt::Key_Down, Qt::Key_Down, choose ? Qt::Key_Return : Qt::Key_Escape})
                QTest::keyClick(combo.view(), key);
            QStringList expected{combo.itemText(1), combo.itemText(2), before};
            if (choose)
                expected << combo.itemText(2);
            QCOMPARE(previews, expected);
            QCOMPARE(previews.last(), combo.currentFont().family());
            QCoreApplication::processEvents();
            combo.setCurrentIndex(1);
            QCOMPARE(previews, expected);
        }
    }
};

NOCTURNE_TEST_MAIN(TestComboBoxes)

#include "tst_comboboxes.moc"
