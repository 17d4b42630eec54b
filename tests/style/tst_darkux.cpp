#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QProcess>

#include <memory>

namespace {

struct TintedRole
{
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
    QRgb tinted;
    QRgb plain;
};

constexpr TintedRole tintedRoles[] = {
    {QPalette::Window, QPalette::Active, 0xff1f2126, 0xff262626},
    {QPalette::Window, QPalette::Disabled, 0xff1c1e22, 0xff222222},
    {QPalette::Window, QPalette::Inactive, 0xff1f2126, 0xff262626},
    {QPalette::Base, QPalette::Active, 0xff191a1e, 0xff1e1e1e},
    {QPalette::Base, QPalette::Disabled, 0xff15161a, 0xff1a1a1a},
    {QPalette::Base, QPalette::Inactive, 0xff191a1e, 0xff1e1e1e},
};

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Disabled,
                                           QPalette::Inactive};

} // namespace

class TestDarkUX : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersItself()
    {
        QVERIFY(!DarkUX::getInstancePtr());
        {
            const Theme theme;
            QCOMPARE(DarkUX::getInstancePtr(), theme.get());
            QCOMPARE(&DarkUX::getInstance(), theme.get());
        }
        QVERIFY(!DarkUX::getInstancePtr());
    }

    void copiesAreNotRegistered()
    {
        const Theme theme;
        {
            DarkUX copy(*theme);
            QCOMPARE(DarkUX::getInstancePtr(), theme.get());
            QCOMPARE(copy.style(), theme->style());
            QCOMPARE(copy.backgroundColor(), theme->backgroundColor());
            copy.setPalette(QPalette(Qt::red), true);
            QVERIFY(copy.palette() != theme->palette());
            copy = *theme;
            QCOMPARE(copy.palette(), theme->palette());
        }
        QCOMPARE(DarkUX::getInstancePtr(), theme.get());
    }

    void missingInstanceEndsWithOneLine()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--no-theme")});
        QVERIFY(process.waitForFinished());
        QVERIFY(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0);
        const QByteArray message = process.readAllStandardError().trimmed();
        QVERIFY2(message.contains("no DarkUX exists"), message.constData());
        QCOMPARE(message.count('\n'), 0);
    }

    void tintsWindowAndBaseOnly()
    {
        const Theme theme;
        for (const TintedRole &expected : tintedRoles) {
            QCOMPARE(theme->palette().color(expected.group, expected.role).rgba(), expected.tinted);
            QCOMPARE(theme->defaultPalette().color(expected.group, expected.role).rgba(),
                     expected.plain);
        }
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (role == QPalette::Window || role == QPalette::Base)
                continue;
            for (QPalette::ColorGroup group : groups)
                QCOMPARE(theme->palette().brush(group, role),
                         theme->defaultPalette().brush(group, role));
        }
    }

    void setPaletteIsUndoneByInitialize()
    {
        const Theme theme;
        const QPalette themed = theme->palette();
        const QPalette plain = theme->defaultPalette();
        for (bool flag : {true, false}) {
            theme->setPalette(QPalette(Qt::green), flag);
            QCOMPARE(theme->palette(), QPalette(Qt::green));
            QCOMPARE(theme->defaultPalette(), plain);
            theme->initialize();
            QCOMPARE(theme->palette(), themed);
        }
    }

    void fixedFacts()
    {
        const Theme theme;
        const QMap<int, QColor> backgrounds = {{0, QColor(0x20, 0x22, 0x28)},
                                               {1, QColor(0x13, 0x14, 0x18)}};
        QCOMPARE(theme->backgroundColor(), backgrounds);
        QCOMPARE(theme->moduleVersion(), QStringLiteral("libnocturne 4.0.0.12026 b03a92d4"));
        QCOMPARE(theme->style()->objectName(), QStringLiteral("DarkFusion"));
    }

    void temperature_data()
    {
        QTest::addColumn<unsigned int>("kelvin");
        QTest::addColumn<QColor>("white");

        QTest::newRow("9500") << 9500u << QColor(205, 220, 255);
        QTest::newRow("8500") << 8500u << QColor(214, 225, 255);
        QTest::newRow("6600") << 6600u << QColor(255, 255, 255);
        QTest::newRow("6699") << 6699u << QColor(255, 255, 255);
        QTest::newRow("40000") << 40000u << QColor(151, 185, 255);
        QTest::newRow("50000") << 50000u << QColor(151, 185, 255);
        QTest::newRow("negative") << static_cast<unsigned int>(-1) << QColor(151, 185, 255);
        QTest::newRow("0") << 0u << QColor(255, 0, 0);
    }

    void temperature()
    {
        QFETCH(unsigned int, kelvin);
        QFETCH(QColor, white);
        QCOMPARE(DarkUX::colorCalc(Qt::white, static_cast<int>(kelvin)), white);
        int red = -1;
        int green = -1;
        int blue = -1;
        DarkUX::getRGBfromTemperature(red, green, blue, kelvin);
        QCOMPARE(red, white.red());
        QCOMPARE(qMax(0, green), white.green());
        QCOMPARE(blue, white.blue());
    }

    void tintIsOpaqueAndDarkestBelow2000K()
    {
        QCOMPARE(DarkUX::colorCalc(QColor(10, 20, 30, 40), 6600), QColor(10, 20, 30, 255));
        for (unsigned int kelvin : {0u, 99u, 100u, 599u, 1999u}) {
            int red = 0;
            int green = 0;
            int blue = -1;
            DarkUX::getRGBfromTemperature(red, green, blue, kelvin);
            QCOMPARE(blue, 0);
        }
    }

private:
    /// A theme whose style is deleted with it, since nobody installs it.
    class Theme
    {
    public:
        ~Theme() { delete m_theme->style(); }
        DarkUX *get() const { return m_theme.get(); }
        DarkUX *operator->() const { return m_theme.get(); }
        DarkUX &operator*() const { return *m_theme; }

    private:
        std::unique_ptr<DarkUX> m_theme = std::make_unique<DarkUX>();
    };
};

int main(int argc, char *argv[])
{
    if (argc > 1 && QByteArray(argv[1]) == "--no-theme") {
        DarkUX::getInstance();
        return 0;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    TestDarkUX test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_darkux.moc"
