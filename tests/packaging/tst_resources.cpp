#include "testsupport.h"

#include <nocturne/DarkUX>

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QResource>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImageReader>

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

/// A name of a translation catalogue, such as "de_DE", and what is in it.
struct Catalogue
{
    explicit Catalogue(const QString &file)
        : name(file.section('/', -1).section('.', 0, 0))
    {
        isLoaded = translator.load(root + "locales/" + name + ".qm");
    }
    static QStringList files() { return listed("locales/"); }
    QString text(const Text &text) const
    {
        return translator.translate(text.first.toUtf8(), text.second.toUtf8());
    }

    QString name;
    QTranslator translator;
    bool isLoaded;
};

/// The translations of a catalogue's source by context and text, empty where it is unfinished.
/// Those that are no longer used are left out; there are none if it is not well formed.
QMap<Text, QString> messagesOf(const QString &path)
{
    QMap<Text, QString> messages;
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
            const QString type = xml.attributes().value("type").toString(); // or "vanished"
            if (type.isEmpty() || type == "unfinished")
                messages[text] = type.isEmpty() ? xml.readElementText() : QString();
        }
    }
    return xml.hasError() ? QMap<Text, QString>() : messages;
}

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

    /// Packed by zlib where that saves at least 70 percent, with a time of change.
    void holdsExactlyTheListedFiles()
    {
        QSet<QString> actual;
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QResource resource(it.next());
            actual << resource.fileName().mid(root.size());
            const QByteArray data = resource.uncompressedData();
            const int saved = 100 * (data.size() - qCompress(data).size()) / data.size();
            QVERIFY2(resource.compressionAlgorithm()
                         == (saved >= 70 ? QResource::ZlibCompression : QResource::NoCompression),
                     qPrintable(it.filePath()));
            QVERIFY(resource.lastModified().isValid());
        }
        const QStringList expected = listed();
        QCOMPARE(expected.size(), 139 + 13);
        QCOMPARE(actual, QSet<QString>(expected.begin(), expected.end()));
    }

    /// A state never looks like the plain image, and no two plain images look alike.
    void images()
    {
        QHash<QByteArray, QString> known;
        for (const QString &path : listed("appicons/")) {
            const QString icon = path.section('/', 1);
            const bool isSplash = icon.startsWith("splash");
            QImageReader reader(root + path);
            reader.setDecideFormatFromContent(true);
            QCOMPARE(reader.format(), icon.section('.', -1).replace("jpg", "jpeg").toLatin1());
            if (icon.endsWith(".svg"))
                continue;
            const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
            const QSize size = icon.startsWith("appicon") ? QSize(256, 256) : QSize(64, 64);
            QCOMPARE(image.size(), isSplash ? QSize(640, 400) : size);
            int seen = 0;
            for (int i = 0; i < image.width() * image.height(); ++i)
                seen += qAlpha(image.pixel(i % image.width(), i / image.width())) > 32;
            const double share = 1.0 * seen / (image.width() * image.height());
            const bool isOpaque = isSplash || icon.endsWith(".jpg");
            QVERIFY2(share > 0.03 && (isOpaque || share < 0.97), qPrintable(icon));
            const QByteArray pixels(reinterpret_cast<const char *>(image.constBits()),
                                    int(image.sizeInBytes()));
            QVERIFY2(!known.contains(pixels), qPrintable(icon + " is " + known.value(pixels)));
            known.insert(pixels, icon);
        }
    }

    /// Every text that the code of the library and of the gallery asks for is in every language.
    void textsOfTheCode()
    {
        const QTemporaryDir scratch;
        const QString collected = scratch.filePath("code.ts");
        QProcess::execute("lupdate", {"-silent", NOCTURNE_SOURCE_DIR "/nocturne",
                                      NOCTURNE_SOURCE_DIR "/examples/gallery", "-ts", collected});
        const auto texts = messagesOf(collected).keys();
        QVERIFY(texts.size() > 4);
        for (const QString &file : Catalogue::files()) {
            const Catalogue catalogue(file);
            QVERIFY(catalogue.isLoaded);
            for (const auto &text : texts)
                QVERIFY2(!catalogue.text(text).isEmpty(), qPrintable(file + text.second));
            for (const Text &text :
                 std::initializer_list<Text>{{"ComboFileChooser", "Media (*.%1)"},
                                             {"FileChooser", "Media (*.%1)"},
                                             {"FileChooser", "load"},
                                             {"LineEditButton", "Clear"}})
            {
                const QString translated = catalogue.text(text);
                QVERIFY2(!translated.isEmpty() && translated != text.second,
                         qPrintable(file + text.second));
            }
        }
        QCOMPARE(Catalogue("de_DE").text({"FileChooser", "load"}), QString("Laden"));
    }

    /// Nothing is left untranslated, every translation keeps the place holders of its text, and an
    /// edition says what its language says, with its own name in the window's title.
    void catalogueSources()
    {
        const QString folder = NOCTURNE_SOURCE_DIR "/nocturne/resources/locales/";
        for (const QString &file : QDir(folder).entryList({"*.ts"}, QDir::Files)) {
            const auto messages = messagesOf(folder + file);
            QVERIFY2(!messages.isEmpty(), qPrintable(file));
            for (auto it = messages.begin(); it != messages.end(); ++it) {
                QVERIFY2(!it->isEmpty() && placeHolders(*it) == placeHolders(it.key().second),
                         qPrintable(file + ": " + it.key().second));
            }
        }
        const QStringList editions = Catalogue::files().filter("-");
        QCOMPARE(editions.size(), 5);
        for (const QString &file : editions) {
            const Catalogue edition(file);
            QVERIFY(edition.text({"Gallery", "libnocturne gallery"})
                        .contains(edition.name.section('-', 1)));
            const auto own = messagesOf(folder + edition.name + ".ts");
            const auto messages = messagesOf(folder + edition.name.section('-', 0, 0) + ".ts");
            QVERIFY(!messages.isEmpty());
            for (auto it = messages.begin(); it != messages.end(); ++it)
                QCOMPARE(edition.text(it.key()), own.value(it.key(), *it));
        }
    }
};

NOCTURNE_TEST_MAIN(TestResources)

#include "tst_resources.moc"
