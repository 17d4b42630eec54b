#include "testsupport.h"

#include <nocturne/DarkUX>

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>

namespace {

const QString root = ":/resources/";

/// The files of \a folder that hosts rely on, below the root.
QStringList listed(const QString &folder = {})
{
    QFile list(NOCTURNE_SOURCE_DIR "/tests/packaging/resources.txt");
    list.open(QIODevice::ReadOnly);
    return QString::fromLatin1(list.readAll()).split('\n', Qt::SkipEmptyParts).filter(folder);
}

using Text = QPair<QString, QString>; ///< the context and the words
using Messages = QMap<Text, QString>; ///< empty where a translation is unfinished

/// What the source of a translation catalogue holds; nothing if it is not well formed.
Messages messagesOf(const QString &path)
{
    Messages messages;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    Text text;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            text.first = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            text.second = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value("type").toString();
            if (type.isEmpty() || type == "unfinished") // otherwise it is no longer used
                messages[text] = type.isEmpty() ? xml.readElementText() : QString();
        }
    }
    return xml.hasError() ? Messages() : messages;
}

/// A translation catalogue by its name, such as "de_DE".
struct Catalogue
{
    explicit Catalogue(const QString &file)
        : name(file)
        , source(messagesOf(NOCTURNE_SOURCE_DIR "/nocturne/resources/locales/" + file + ".ts"))
        , isLoaded(translator.load(root + "locales/" + file + ".qm"))
    {}
    QString text(const Text &text) const
    {
        return translator.translate(text.first.toUtf8(), text.second.toUtf8());
    }

    QString name;
    Messages source;
    QTranslator translator;
    bool isLoaded;
};

/// The place holders of a text and how often each occurs.
QStringList placeHolders(const QString &text)
{
    QStringList found;
    auto matches = QRegularExpression("%(?:L?\\d+|n)").globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    found.sort();
    return found;
}

} // namespace

class TestResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The linker leaves out a library of which a program uses nothing.
    void initTestCase() { QVERIFY(DarkUX::colorCalc(Qt::white, 6600).isValid()); }

    void holdsExactlyTheListedFiles()
    {
        QStringList actual;
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            actual << it.next().mid(root.size());
        actual.sort();
        QCOMPARE(actual, listed());
    }

    /// A state never looks like the plain image, and no two plain images look alike.
    void images()
    {
        QVector<QImage> known;
        for (const QString &path : listed("appicons/").filter(QRegularExpression("(png|jpg)$"))) {
            const QImage image = QImage(root + path).convertToFormat(QImage::Format_ARGB32);
            const bool isSplash = path.contains("/splash");
            const int edge = path.contains("/appicon") ? 256 : 64;
            QCOMPARE(image.size(), isSplash ? QSize(640, 400) : QSize(edge, edge));
            const QImage average =
                image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const int cover = qAlpha(average.pixel(0, 0));
            const bool isOpaque = isSplash || path.endsWith("jpg");
            QVERIFY2(cover > 7 && (isOpaque || cover < 248), qPrintable(path));
            QVERIFY2(!known.contains(image), qPrintable(path));
            known << image;
        }
    }

    /// Every text that the code of the library and of the gallery asks for is in every language,
    /// and every translation keeps the place holders of its text. An edition says what its language
    /// says, with its own name in the window's title.
    void catalogues()
    {
        const QTemporaryDir scratch;
        const QString collected = scratch.filePath("code.ts");
        QProcess::execute("lupdate", {"-silent", NOCTURNE_SOURCE_DIR "/nocturne",
                                      NOCTURNE_SOURCE_DIR "/examples/gallery", "-ts", collected});
        const QList<Text> texts = messagesOf(collected).keys();
        QVERIFY(texts.size() > 4);
        for (const QString &file : listed("locales/")) {
            const Catalogue catalogue(file.section('/', -1).section('.', 0, 0));
            QVERIFY(catalogue.isLoaded && !catalogue.source.isEmpty());
            for (const Text &text : texts)
                QVERIFY2(!catalogue.text(text).isEmpty(), qPrintable(file + text.second));
            QVERIFY(catalogue.text({"FileChooser", "load"}) != "load");
            for (auto it = catalogue.source.begin(); it != catalogue.source.end(); ++it) {
                QVERIFY2(!it->isEmpty() && placeHolders(*it) == placeHolders(it.key().second),
                         qPrintable(file + ": " + it.key().second));
            }
            const QString edition = catalogue.name.section('-', 1);
            QVERIFY(catalogue.text({"Gallery", "libnocturne gallery"}).contains(edition));
            const Messages messages = Catalogue(catalogue.name.section('-', 0, 0)).source;
            for (auto it = messages.begin(); it != messages.end(); ++it)
                QCOMPARE(catalogue.text(it.key()), catalogue.source.value(it.key(), *it));
        }
        QCOMPARE(Catalogue("de_DE").text({"FileChooser", "load"}), QString("Laden"));
    }
};

NOCTURNE_TEST_MAIN(TestResources)

#include "tst_resources.moc"
