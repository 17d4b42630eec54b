#include "modaldialog.h"
#include "testsupport.h"

#include <nocturne/QMessageBoxEx>

#include <QtWidgets/QPushButton>

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

} // namespace

class TestMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The recorded texts cannot be removed, so the order of these functions matters.
    void plainTextsWithNothingRecorded()
    {
        QMessageBox plain;
        plain.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        whenOpen<QMessageBox>([&plain](QMessageBox *box) {
            QCOMPARE(textOf(box, QMessageBox::Yes), textOf(&plain, QMessageBox::Yes));
            QCOMPARE(textOf(box, QMessageBox::No), textOf(&plain, QMessageBox::No));
            QCOMPARE(box->windowTitle(), QStringLiteral("title"));
            QCOMPARE(box->text(), QStringLiteral("text"));
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        });
        QCOMPARE(QMessageBoxEx::question(nullptr, QStringLiteral("title"), QStringLiteral("text")),
                 QMessageBox::No);
    }

    void iconsButtonsAndDefaults_data()
    {
        QTest::addColumn<int>("icon");
        QTest::newRow("information") << int(QMessageBox::Information);
        QTest::newRow("question") << int(QMessageBox::Question);
        QTest::newRow("warning") << int(QMessageBox::Warning);
        QTest::newRow("critical") << int(QMessageBox::Critical);
    }

    void iconsButtonsAndDefaults()
    {
        QFETCH(int, icon);
        using Open = QMessageBox::StandardButton (*)(QWidget *, const QString &, const QString &,
                                                     QMessageBox::StandardButtons,
                                                     QMessageBox::StandardButton);
        const QMap<int, Open> functions = {
            {QMessageBox::Information, &QMessageBoxEx::information},
            {QMessageBox::Question, &QMessageBoxEx::question},
            {QMessageBox::Warning, &QMessageBoxEx::warning},
            {QMessageBox::Critical, &QMessageBoxEx::critical},
        };
        whenOpen<QMessageBox>([icon](QMessageBox *box) {
            QCOMPARE(int(box->icon()), icon);
            QCOMPARE(box->standardButtons(), QMessageBox::Retry | QMessageBox::Cancel);
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::Retry));
            QTest::keyClick(box, Qt::Key_Return);
        });
        QCOMPARE(functions.value(icon)(nullptr, QString(), QStringLiteral("?"),
                                       QMessageBox::Retry | QMessageBox::Cancel,
                                       QMessageBox::Retry),
                 QMessageBox::Retry);
    }

    void escapeGivesTheEscapeButton()
    {
        whenOpen<QMessageBox>([](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(QMessageBoxEx::question(nullptr, QString(), QString(),
                                         QMessageBox::Yes | QMessageBox::Cancel),
                 QMessageBox::Cancel);
        whenOpen<QMessageBox>([](QMessageBox *box) {
            QCOMPARE(box->standardButtons(), QMessageBox::Ok);
            box->close();
        });
        QCOMPARE(QMessageBoxEx::warning(nullptr, QString(), QString()), QMessageBox::Ok);
    }

    void aParentDeletedMeanwhileGivesNoButton()
    {
        auto *parent = new QWidget;
        whenOpen<QMessageBox>([parent](QMessageBox *) { delete parent; });
        QCOMPARE(QMessageBoxEx::critical(parent, QString(), QString()), QMessageBox::NoButton);
    }

    void recordedTextsReplaceTheToolkits()
    {
        QMessageBoxEx::setCustomTextForButton(QMessageBox::Yes, QStringLiteral("Go"));
        QMessageBoxEx::setCustomTextForButton(QMessageBox::Cancel, QStringLiteral("Stay"));
        QMessageBox plain(QMessageBox::Question, QString(), QString(),
                          QMessageBox::Yes | QMessageBox::No);
        whenOpen<QMessageBox>([&plain](QMessageBox *box) {
            QCOMPARE(textOf(box, QMessageBox::Yes), QStringLiteral("Go"));
            QCOMPARE(textOf(box, QMessageBox::No), textOf(&plain, QMessageBox::No));
            QVERIFY(!box->button(QMessageBox::Cancel));
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
        QCOMPARE(QMessageBoxEx::question(nullptr, QString(), QString()), QMessageBox::Yes);

        QMessageBoxEx::setCustomTextForButton(QMessageBox::Yes, QStringLiteral("Go on"));
        QMessageBoxEx::setCustomTextForButton(QMessageBox::Ok, QString());
        OwnBox own;
        own.setStandardButtons(QMessageBox::Yes | QMessageBox::Ok);
        QCOMPARE(textOf(&own, QMessageBox::Yes), textOf(&plain, QMessageBox::Yes));
        OwnBox::setCustomTextForButtons(own);
        QCOMPARE(textOf(&own, QMessageBox::Yes), QStringLiteral("Go on"));
        QCOMPARE(textOf(&own, QMessageBox::Ok), QString());
    }
};

NOCTURNE_TEST_MAIN(TestMessageBox)

#include "tst_messagebox.moc"
