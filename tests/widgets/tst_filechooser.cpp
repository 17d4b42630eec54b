#include "modaldialog.h"
#include "testsupport.h"

#include <nocturne/ComboBox>
#include <nocturne/ComboFileChooser>
#include <nocturne/FileChooser>

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace {

/// Types \a path into the dialog and confirms it as a user does.
void choose(const QString &path)
{
    whenOpen<QFileDialog>([path](QFileDialog *dialog) {
        auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QVERIFY(edit);
        edit->setText(path);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

void cancel()
{
    whenOpen<QFileDialog>([](QFileDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
}

QString extensionsIn(const QString &filter)
{
    return filter.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0);
}

template <typename Chooser, typename Button>
void click(Chooser &chooser)
{
    auto *button = chooser.template findChild<Button *>();
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

class TestFileChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        for (const char *name : {"clip.mp4", "still.png"}) {
            QFile file(m_dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void lineEditReportsEveryChange()
    {
        FileChooser chooser;
        QSignalSpy changed(&chooser, &FileChooser::fileNameChanged);
        auto *edit = chooser.findChild<QLineEdit *>();
        QCOMPARE(chooser.focusProxy(), edit);
        QTest::keyClicks(edit, QStringLiteral("ab"));
        QCOMPARE(changed.count(), 2);
        chooser.setFileName(QStringLiteral("ab"));
        QCOMPARE(changed.count(), 2);
        chooser.setFileName(QStringLiteral("c"));
        QCOMPARE(changed.takeLast().first().toString(), QStringLiteral("c"));
        auto *button = chooser.findChild<QPushButton *>();
        QCOMPARE(button->text(), QStringLiteral("load"));
        QCOMPARE(button->minimumWidth(), 10);
    }

    void choosingReportsTwiceOrOnceWhenUnchanged()
    {
        const QString clip = m_dir.filePath(QStringLiteral("clip.mp4"));
        FileChooser chooser;
        chooser.setFileName(m_dir.filePath(QStringLiteral("still.png")));
        QSignalSpy changed(&chooser, &FileChooser::fileNameChanged);

        whenOpen<QFileDialog>([this](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), m_dir.filePath(QStringLiteral("still.png")));
            QCOMPARE(dialog->directory().absolutePath(), m_dir.path());
            QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
            const QString extensions = extensionsIn(dialog->nameFilters().first());
            QVERIFY(extensions.startsWith(QLatin1String("*.avi *.wmv ")));
            QVERIFY(extensions.contains(QLatin1String(" *.amv *.wav ")));
            QVERIFY(
                extensions.endsWith(QLatin1String(" *.tak *.bmp *.jpg *.png *.tga *.svg *.tiff")));
            QCOMPARE(extensions.count(QLatin1String("*.")), 53 + 19 + 6);
            dialog->reject();
        });
        click<FileChooser, QPushButton>(chooser);
        QCOMPARE(changed.count(), 0);

        choose(clip);
        click<FileChooser, QPushButton>(chooser);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(chooser.fileName(), clip);
        for (const auto &arguments : changed)
            QCOMPARE(arguments.first().toString(), clip);

        changed.clear();
        choose(clip);
        click<FileChooser, QPushButton>(chooser);
        QCOMPARE(changed.count(), 1);

        cancel();
        click<FileChooser, QPushButton>(chooser);
        QCOMPARE(changed.count(), 1);
    }

    void directoriesOnly()
    {
        FileChooser chooser;
        QCOMPARE(chooser.mode(), FileChooser::OpenFile);
        chooser.setMode(FileChooser::OpenDirectory);
        ComboFileChooser combo;
        combo.setMode(ComboFileChooser::OpenDirectory);
        const auto isForFolders = [this](QFileDialog *dialog) {
            QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(m_dir.path());
            QTest::keyClick(edit, Qt::Key_Return);
        };
        whenOpen<QFileDialog>(isForFolders);
        click<FileChooser, QPushButton>(chooser);
        QCOMPARE(chooser.fileName(), m_dir.path());
        whenOpen<QFileDialog>(isForFolders);
        click<ComboFileChooser, QToolButton>(combo);
        QCOMPARE(combo.fileName(), m_dir.path());
    }

    void comboFilter_data()
    {
        QTest::addColumn<int>("types");
        QTest::addColumn<QString>("first");
        QTest::addColumn<int>("count");

        QTest::newRow("images") << 1 << "*.bmp *.jpg *.png *.tga *.svg *.tiff" << 6;
        QTest::newRow("video") << 2 << "*.avi *.wmv" << 53;
        QTest::newRow("audio") << 4 << "*.wav *.wma" << 19;
        QTest::newRow("none") << 0 << "*." << 1;
    }

    void comboFilter()
    {
        QFETCH(int, types);
        QFETCH(QString, first);
        QFETCH(int, count);
        ComboFileChooser chooser;
        chooser.setOpenFileType(QFlags<OpenFileType>(types));
        chooser.setLastSelectedDir(m_dir.path());
        whenOpen<QFileDialog>([=](QFileDialog *dialog) {
            QCOMPARE(dialog->directory().absolutePath(), m_dir.path());
            const QString extensions = extensionsIn(dialog->nameFilters().first());
            QVERIFY2(extensions.startsWith(first), qPrintable(extensions));
            QCOMPARE(extensions.count(QLatin1String("*.")), count);
            dialog->reject();
        });
        click<ComboFileChooser, QToolButton>(chooser);
    }

    void comboKeepsOnlyTheChosenPath()
    {
        const QString clip = m_dir.filePath(QStringLiteral("clip.mp4"));
        ComboFileChooser chooser;
        auto *combo = chooser.findChild<ComboBox *>();
        QCOMPARE(chooser.focusProxy(), combo);
        chooser.addItem(QStringLiteral("a"));
        chooser.addItems({QStringLiteral("b"), QStringLiteral("c")});
        chooser.setFileName(QStringLiteral("b"));
        QCOMPARE(chooser.fileName(), QStringLiteral("b"));

        QStringList heard;
        connect(&chooser, &ComboFileChooser::beforFileOpen, this, [&heard] {
            QVERIFY(!QApplication::activeModalWidget());
            heard << QStringLiteral("before");
        });
        connect(&chooser, &ComboFileChooser::fileNameChanged, this,
                [&heard](const QString &name) { heard << name; });
        cancel();
        click<ComboFileChooser, QToolButton>(chooser);
        QCOMPARE(heard, QStringList({QStringLiteral("before")}));
        QCOMPARE(combo->count(), 3);

        heard.clear();
        choose(clip);
        click<ComboFileChooser, QToolButton>(chooser);
        QCOMPARE(heard, QStringList({QStringLiteral("before"), clip}));
        QCOMPARE(combo->count(), 1);
        chooser.clear();
        QCOMPARE(chooser.fileName(), QString());
    }

    void deletedWhileItsDialogIsOpen()
    {
        auto *chooser = new FileChooser;
        whenOpen<QFileDialog>([chooser](QFileDialog *) { delete chooser; });
        QMetaObject::invokeMethod(chooser, "chooseFile");
    }

private:
    QTemporaryDir m_dir;
};

NOCTURNE_TEST_MAIN(TestFileChooser)

#include "tst_filechooser.moc"
