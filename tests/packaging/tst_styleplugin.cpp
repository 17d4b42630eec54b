#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>

#include <QtCore/QProcess>
#include <QtWidgets/QStyleFactory>

#include <memory>

// The look by name, in programs that were built without the library.

namespace {

const QString pluginPath = NOCTURNE_BUILD_DIR "/plugins";

} // namespace

/// Known to the style by its name only, as the views of web engines are.
class QWebView : public QWidget
{
    Q_OBJECT
};

class TestStylePlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::addLibraryPath(pluginPath); }

    void cleanup() { QVERIFY(!DarkUX::getInstancePtr()); }

    void stylesByName()
    {
        const std::unique_ptr<QStyle> style(QStyleFactory::create("darkfusion"));
        QVERIFY(qobject_cast<DarkFusionStyle *>(style.get()));
        const QPalette palette = style->standardPalette();
        // Not the static part of this program, so known by its name only.
        const std::unique_ptr<QStyle> readable(QStyleFactory::create("darkfusionreadable"));
        QVERIFY(readable && readable->inherits("DarkReadableStyle"));
        QCOMPARE(readable->standardPalette(), DarkReadableStyle::palette(palette));

        // They brought no theme along, and follow one that comes.
        QVERIFY(!DarkUX::getInstancePtr());
        DarkUX theme;
        const std::unique_ptr<QStyle> themeStyle(theme.style());
        QCOMPARE(palette, theme.palette());
        QVERIFY(themeStyle->standardPalette() != palette);
        theme.setPalette(QPalette(Qt::darkRed), false);
        QCOMPARE(style->standardPalette(), QPalette(Qt::darkRed));
        QCOMPARE(DarkUX::getInstancePtr(), &theme);
    }

    /// What a program sets stays; the rest is dark.
    void applicationPalette()
    {
        QApplication::setStyle("DarkFusion");
        QPalette expected = QApplication::style()->standardPalette();
        for (auto group : {QPalette::Active, QPalette::Disabled}) {
            for (auto role : {QPalette::Window, QPalette::Text, QPalette::Highlight})
                QCOMPARE(QApplication::palette().color(group, role), expected.color(group, role));
            QPalette own;
            own.setColor(QPalette::Highlight, Qt::red);
            expected.setColor(QPalette::Highlight, Qt::red);
            QApplication::setPalette(own);
        }
        QApplication::setPalette(QPalette());
        QApplication::setStyle("Fusion");
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 200);
    }

    void paperOfWebPages()
    {
        const std::unique_ptr<QStyle> style(QStyleFactory::create("DarkFusion"));
        QPalette paper = style->standardPalette();
        QWebView view;
        QWidget other;
        for (QWidget *widget : {static_cast<QWidget *>(&view), &other}) {
            widget->setPalette(paper);
            style->polish(widget);
        }
        QCOMPARE(other.palette(), paper);
        paper.setColor(QPalette::Base, Qt::white);
        paper.setColor(QPalette::Text, Qt::black);
        for (auto role : {QPalette::Window, QPalette::Base, QPalette::Text})
            QCOMPARE(view.palette().color(role), paper.color(role));
    }

    void hostWithoutTheLibrary()
    {
        for (const QString &path : {pluginPath, QString()}) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("QT_QPA_PLATFORM", "offscreen");
            environment.insert("QT_STYLE_OVERRIDE", "DarkFusion");
            environment.insert("QT_PLUGIN_PATH", path);
            QProcess host;
            host.setProcessEnvironment(environment);
            host.start(NOCTURNE_BUILD_DIR "/bin/nocturne-loadprobe", {});
            QVERIFY(host.waitForFinished());
            const int lightness = host.readAll().trimmed().toInt();
            QVERIFY2(path.isEmpty() ? lightness > 150 : lightness < 60 && lightness > 0,
                     QByteArray::number(lightness));
        }
    }
};

NOCTURNE_TEST_MAIN(TestStylePlugin)

#include "tst_styleplugin.moc"
