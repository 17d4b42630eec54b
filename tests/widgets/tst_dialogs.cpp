#include "modaldialog.h"
#include "probes.h"

#include <nocturne/ComboBox>
#include <nocturne/ComboFileChooser>
#include <nocturne/FileChooser>
#include <nocturne/QBalloonTip>
#include <nocturne/QMessageBoxEx>

#include <QtCore/QTemporaryDir>
#include <QtGui/QBitmap>
#include <QtGui/QScreen>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

// What opens a window of its own: message boxes, file choosers and balloons.

namespace {

QString textOf(QMessageBox *box, QMessageBox::StandardButton button)
{
    return box->button(button)->text();
}

class OwnBox : public QMessageBoxEx
{
public:
    using QMessageBoxEx::setCustomTextForButtons;
};

/// Opens the dialog of \a chooser, has it looked at, types \a path into it and confirms it as a
/// user does, or presses Escape.
void choose(
    QWidget &chooser, const QString &path = {},
    const std::function<void(QFileDialog *)> &look = [](QFileDialog *) {})
{
    whenOpen<QFileDialog>([=](QFileDialog *dialog) {
        look(dialog);
        auto *edit = dialog->findChild<QLineEdit *>("fileNameEdit");
        edit->setText(path);
        QTest::keyClick(edit, path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    QTest::mouseClick(chooser.findChild<QAbstractButton *>(), Qt::LeftButton);
}

QVector<QBalloonTip *> balloons()
{
    QVector<QBalloonTip *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *balloon = qobject_cast<QBalloonTip *>(window))
            found << balloon;
    }
    return found;
}

/// The one that is seen.
QBalloonTip *currentBalloon()
{
    for (QBalloonTip *balloon : balloons()) {
        if (balloon->isVisible())
            return balloon;
    }
    return nullptr;
}

QBalloonTip *show(const QPoint &position, int timeout = 0, bool arrow = true,
                  QSystemTrayIcon *trayIcon = nullptr)
{
    QBalloonTip::showBalloon(QSystemTrayIcon::Warning, "Title", "A message", trayIcon, position,
                             timeout, arrow);
    return currentBalloon();
}

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &path : {m_clip, m_still})
            QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    }

    void cleanup()
    {
        QBalloonTip::hideBalloon();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(balloons().isEmpty());
    }

    // The recorded texts cannot be removed, so they come last.
    void messageBoxes()
    {
        using Box = QMessageBoxEx;
        int icon = Box::Information;
        for (auto open : {&Box::information, &Box::warning, &Box::critical, &Box::question}) {
            for (auto button : {Box::Retry, Box::Cancel}) {
                whenOpen<QMessageBox>([icon](QMessageBox *box) {
                    QCOMPARE(int(box->icon()), icon);
                    QCOMPARE(box->windowTitle() + box->text(), QString("title?"));
                    QCOMPARE(box->standardButtons(), Box::Retry | Box::Cancel);
                    QTest::keyClick(box, Qt::Key_Return);
                });
                QCOMPARE(open(nullptr, "title", "?", Box::Retry | Box::Cancel, button), button);
            }
            ++icon;
        }
        whenOpen<QMessageBox>([](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(Box::question(nullptr, {}, {}, Box::Yes | Box::Cancel), Box::Cancel);
        whenOpen<QMessageBox>([](QMessageBox *box) { box->close(); });
        QCOMPARE(Box::warning(nullptr, {}, {}), Box::Ok);
        auto *parent = new QWidget;
        whenOpen<QMessageBox>([parent](QMessageBox *) { delete parent; });
        QCOMPARE(Box::critical(parent, {}, {}), Box::NoButton);

        Box::setCustomTextForButton(Box::Yes, "Go");
        Box::setCustomTextForButton(Box::Cancel, "Stay");
        QMessageBox plain(Box::Question, {}, {}, Box::Yes | Box::No);
        whenOpen<QMessageBox>([&plain](QMessageBox *box) {
            QCOMPARE(textOf(box, Box::Yes), QString("Go"));
            QCOMPARE(textOf(box, Box::No), textOf(&plain, Box::No));
            QVERIFY(!box->button(Box::Cancel));
            QTest::mouseClick(box->button(Box::Yes), Qt::LeftButton);
        });
        QCOMPARE(Box::question(nullptr, {}, {}), Box::Yes);
        Box::setCustomTextForButton(Box::Yes, "Go on");
        Box::setCustomTextForButton(Box::Ok, {});
        OwnBox own;
        own.setStandardButtons(Box::Yes | Box::Ok);
        QCOMPARE(textOf(&own, Box::Yes), textOf(&plain, Box::Yes));
        OwnBox::setCustomTextForButtons(own);
        QCOMPARE(textOf(&own, Box::Yes) + textOf(&own, Box::Ok), QString("Go on"));
    }

    void fileChooserReports()
    {
        FileChooser chooser;
        QStringList heard;
        connect(&chooser, &FileChooser::fileNameChanged, this,
                [&heard](const QString &name) { heard << name; });
        auto *edit = chooser.findChild<QLineEdit *>();
        QCOMPARE(chooser.focusProxy(), edit);
        QTest::keyClicks(edit, "ab");
        chooser.setFileName("ab");
        chooser.setFileName(m_still);
        QCOMPARE(std::exchange(heard, {}), QStringList({"a", "ab", m_still}));

        choose(chooser, {}, [this](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), m_still);
            QCOMPARE(dialog->directory().absolutePath(), m_dir.path());
            QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
        });
        QCOMPARE(heard, QStringList());
        choose(chooser, m_clip); // reported by the field and by the choice
        choose(chooser, m_clip);
        choose(chooser);
        QCOMPARE(heard, QStringList({m_clip, m_clip, m_clip}));
        chooser.setMode(FileChooser::OpenDirectory);
        choose(chooser, m_dir.path(),
               [](QFileDialog *dialog) { QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly)); });
        QCOMPARE(chooser.fileName(), m_dir.path());
    }

    void filters()
    {
        const auto extensionsOf = [this](QWidget &chooser) {
            QString filter;
            choose(chooser, {}, [&](QFileDialog *dialog) {
                filter = dialog->nameFilters().first().section('(', 1).section(')', 0, 0);
                QCOMPARE(dialog->directory().absolutePath(), m_dir.path());
            });
            return filter;
        };
        ComboFileChooser combo;
        combo.setLastSelectedDir(m_dir.path());
        QStringList filters;
        for (int types : {2, 4, 1, 0}) {
            combo.setOpenFileType(QFlags<OpenFileType>(types));
            filters << extensionsOf(combo);
        }
        QVERIFY(filters[0].startsWith("*.avi *.wmv ") && filters[0].count("*.") == 53);
        QVERIFY(filters[1].startsWith("*.wav ") && filters[1].count("*.") == 19);
        QCOMPARE(filters[2], QString("*.bmp *.jpg *.png *.tga *.svg *.tiff"));
        QCOMPARE(filters.takeLast(), QString("*."));
        FileChooser chooser;
        chooser.setFileName(m_still);
        QCOMPARE(extensionsOf(chooser), filters.join(' '));
    }

    void comboKeepsOnlyTheChosenPath()
    {
        ComboFileChooser chooser;
        auto *combo = chooser.findChild<ComboBox *>();
        QCOMPARE(chooser.focusProxy(), combo);
        chooser.addItems({"a", "b", "c"});
        chooser.setFileName("b");
        QCOMPARE(chooser.fileName(), QString("b"));
        QStringList heard;
        connect(&chooser, &ComboFileChooser::beforFileOpen, this, [&heard] {
            QVERIFY(!QApplication::activeModalWidget());
            heard << "before";
        });
        connect(&chooser, &ComboFileChooser::fileNameChanged, this,
                [&heard](const QString &name) { heard << name; });
        choose(chooser);
        QCOMPARE(combo->count(), 3);
        choose(chooser, m_clip);
        QCOMPARE(heard, QStringList({"before", "before", m_clip}));
        QCOMPARE(combo->count(), 1);
        chooser.clear();
        QCOMPARE(chooser.fileName(), QString());

        auto *doomed = new FileChooser;
        whenOpen<QFileDialog>([doomed](QFileDialog *) { delete doomed; });
        QMetaObject::invokeMethod(doomed, "chooseFile");
    }

    void balloonPlacement()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (int i = 0; i < 8; ++i) {
            const bool top = i & 1;
            const bool left = i & 2;
            const bool arrow = i & 4;
            const QPoint position(left ? 60 : screen.right() - 60, top ? 60 : screen.bottom() - 60);
            QBalloonTip *balloon = show(position, 0, arrow);
            QVERIFY(balloon);
            const QSize size = balloon->sizeHint();
            QCOMPARE(balloon->size(), size);
            QCOMPARE(balloon->pos(),
                     position - QPoint(left ? 18 : size.width() - 18, top ? 0 : size.height()));
            QCOMPARE(balloon->contentsMargins(),
                     top ? QMargins(4, 21, 4, 3) : QMargins(4, 3, 4, 21));

            // What is painted is what the mask keeps: paper inside, a darker line around it.
            const QRegion mask = balloon->mask();
            const QImage image =
                TestSupport::paintOn(size, Qt::transparent, [&](QPainter &painter) {
                    balloon->render(&painter, mask.boundingRect().topLeft(), {},
                                    QWidget::DrawChildren);
                });
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x)
                    QCOMPARE(image.pixelColor(x, y).alpha(), mask.contains(QPoint(x, y)) ? 255 : 0);
            }
            const int right = size.width() - 1;
            const QRect body(0, top ? 18 : 0, size.width(), size.height() - 18);
            const QColor paper(255, 255, 225);
            TestSupport::comparePixels(image, Qt::transparent,
                                       {body.topLeft(), body.bottomRight()});
            TestSupport::comparePixels(
                image, paper.darker(160),
                {{right / 2, body.top()}, {right / 2, body.bottom()}, {0, body.center().y()}});
            COMPARE_PIXEL(image, 2, body.center().y(), paper);
            const QPoint inArrow(left ? 20 : right - 20, top ? 10 : size.height() - 10);
            QCOMPARE(mask.contains(inArrow), arrow);

            // It stays on the screen.
            balloon = show(QPoint(left ? 1 : screen.right() - 1, 100));
            QCOMPARE(balloon->x(), left ? 2 : screen.right() - balloon->width() - 2);
        }
    }

    void balloonContents()
    {
        QBalloonTip::showBalloon(QSystemTrayIcon::NoIcon, "<b>t</b>",
                                 QString(400, 'm').replace(100, 1, ' '), nullptr, QPoint(100, 100),
                                 0, true);
        auto labels = currentBalloon()->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 2);
        QVERIFY(labels.at(0)->font().bold());
        QCOMPARE(labels.at(0)->textFormat(), Qt::PlainText);
        QCOMPARE(labels.at(1)->width(),
                 QGuiApplication::primaryScreen()->availableGeometry().width() / 3);
        labels = show(QPoint(100, 100))->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 3);
        QVERIFY(!labels.last()->wordWrap());
        QCOMPARE(balloons().size(), 1);
        // Nothing to say only removes.
        QBalloonTip::showBalloon(QSystemTrayIcon::Critical, {}, {}, nullptr, {}, 0);
        QVERIFY(!QBalloonTip::isBalloonVisible());
    }

    void balloonClicks()
    {
        auto trayIcon = std::make_unique<QSystemTrayIcon>();
        QSignalSpy clicked(trayIcon.get(), &QSystemTrayIcon::messageClicked);
        const auto clicksOf = [&](Qt::MouseButton button, bool onClose = false) {
            clicked.clear();
            QWidget *balloon = show(QPoint(200, 200), 0, true, trayIcon.get());
            QTest::mouseClick(onClose ? balloon->findChild<QPushButton *>() : balloon, button);
            return clicked.count();
        };
        QCOMPARE(clicksOf(Qt::RightButton), 0);
        QVERIFY(!QBalloonTip::isBalloonVisible());
        QCOMPARE(clicksOf(Qt::LeftButton, true), 0);
        QCOMPARE(clicksOf(Qt::LeftButton), 1);
        QVERIFY(!QBalloonTip::isBalloonVisible());

        // Whoever hears the click may show the next.
        connect(trayIcon.get(), &QSystemTrayIcon::messageClicked, this,
                [] { show(QPoint(300, 300)); });
        QCOMPARE(clicksOf(Qt::LeftButton), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(balloons(), QVector<QBalloonTip *>{currentBalloon()});
        show(QPoint(200, 200), 0, true, trayIcon.get());
        trayIcon.reset();
        QVERIFY(!QBalloonTip::isBalloonVisible());
    }

    void balloonTimeouts()
    {
        QCursor::setPos(0, 0);
        show(QPoint(200, 200), 30);
        QBalloonTip::updateBalloonPosition(QPoint(300, 300));
        QCOMPARE(currentBalloon()->pos(), QPoint(282, 300));
        QTRY_VERIFY(!QBalloonTip::isBalloonVisible());
        show(QPoint(200, 200), 20)->setAttribute(Qt::WA_UnderMouse);
        QTest::qWait(50);
        QVERIFY(QBalloonTip::isBalloonVisible());
    }

private:
    const QTemporaryDir m_dir;
    const QString m_clip = m_dir.filePath("clip.mp4");
    const QString m_still = m_dir.filePath("still.png");
};

NOCTURNE_TEST_MAIN(TestDialogs)

#include "tst_dialogs.moc"
