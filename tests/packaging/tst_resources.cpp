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
const QString catalogueFolder = root + "locales/";

/// The files of \a folder that hosts rely on, below the root.
QStringList listed(const QString &folder = {})
{
    QFile list(NOCTURNE_SOURCE_DIR "/tests/packaging/resources.txt");
    list.open(QIODevice::ReadOnly);
    return QString::fromLatin1(list.readAll()).split('\n', Qt::SkipEmptyParts).filter(folder);
}

/// The catalogues without their suffix.
QStringList baseNames()
{
    return listed("locales/").replaceInStrings("locales/", "").replaceInStrings(".qm", "");
}

QSize sizeOf(const QString &icon)
{
    if (icon.startsWith("appicon"))
        return {256, 256};
    if (icon.startsWith("splash"))
        return {640, 400};
    return {64, 64};
}

struct Message
{
    QString context;
    QString source;
    QString translation = {};
    bool finished = false;

    QString key() const { return context + source; }
    QString in(const QTranslator &translator) const
    {
        return translator.translate(context.toUtf8(), source.toUtf8());
    }
};

/// The messages of a catalogue's source; none if it is not well formed.
QVector<Message> messagesOf(const QString &path)
{
    QVector<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            // A text that is no longer used is kept as "vanished" or "obsolete".
            const QString type = xml.attributes().value("type").toString();
            if (type.isEmpty() || type == "unfinished")
                messages << Message{context, source, xml.readElementText(), type.isEmpty()};
        }
    }
    return xml.hasError() ? QVector<Message>() : messages;
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
        QStringList actual;
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QResource resource(it.next());
            actual << resource.fileName().mid(root.size());
            const QByteArray data = resource.uncompressedData();
            const int saved = 100 * (data.size() - qCompress(data).size()) / data.size();
            QVERIFY2(resource.compressionAlgorithm()
                         == (saved >= 70 ? QResource::ZlibCompression : QResource::NoCompression),
                     qPrintable(actual.last()));
            QVERIFY(resource.lastModified().isValid());
        }
        QStringList expected = listed();
        QCOMPARE(expected.size(), 139 + 13);
        expected.sort();
        actual.sort();
        QCOMPARE(actual, expected);
        QVERIFY(!QFile::exists(root + "appicons/FileOpen.png"));
    }

    /// A state never looks like the plain image, and no two plain images look alike.
    void images()
    {
        QHash<QByteArray, QString> known;
        for (const QString &path : listed("appicons/")) {
            const QString icon = path.section('/', 1);
            const QByteArray name = icon.toLatin1();
            if (icon.endsWith(".svg")) {
                QFile file(root + path);
                QVERIFY(file.open(QIODevice::ReadOnly));
                QXmlStreamReader xml(&file);
                QVERIFY(xml.readNextStartElement());
                QCOMPARE(xml.name(), QString("svg"));
                continue;
            }
            QImageReader reader(root + path);
            reader.setDecideFormatFromContent(true);
            QCOMPARE(reader.format(), QByteArray(icon.endsWith(".jpg") ? "jpeg" : "png"));
            const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
            QVERIFY2(image.size() == sizeOf(icon), name);
            const double seen = share(image);
            QVERIFY2(seen > 0.03, name);
            QVERIFY2(icon.startsWith("splash") || icon.endsWith(".jpg") || seen < 0.97, name);
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
        const QVector<Message> texts = messagesOf(collected);
        QVERIFY(texts.size() > 4);
        for (const QString &catalogue : baseNames()) {
            QTranslator translator;
            QVERIFY(translator.load(catalogueFolder + catalogue + ".qm"));
            for (const Message &text : texts)
                QVERIFY2(!text.in(translator).isEmpty(), qPrintable(catalogue + text.key()));
            for (const Message &text :
                 {Message{"ComboFileChooser", "Media (*.%1)"},
                  Message{"FileChooser", "Media (*.%1)"}, Message{"FileChooser", "load"},
                  Message{"LineEditButton", "Clear"}})
            {
                const QString translated = text.in(translator);
                QVERIFY2(!translated.isEmpty() && translated != text.source,
                         qPrintable(catalogue + text.key()));
            }
        }
        QTranslator german;
        QVERIFY(german.load(catalogueFolder + "de_DE.qm"));
        QCOMPARE(german.translate("FileChooser", "load"), QString("Laden"));
    }

    /// Nothing is left untranslated, every translation keeps the place holders of its text, and an
    /// edition says what its language says, with its own name in the window's title.
    void catalogueSources()
    {
        const QString folder = NOCTURNE_SOURCE_DIR "/nocturne/resources/locales/";
        const QStringList files = QDir(folder).entryList({"*.ts"}, QDir::Files);
        QVERIFY(!files.isEmpty());
        for (const QString &file : files) {
            const QVector<Message> messages = messagesOf(folder + file);
            QVERIFY2(!messages.isEmpty(), qPrintable(file));
            for (const Message &message : messages) {
                const QString where = file + ": " + message.source;
                QVERIFY2(message.finished && !message.translation.isEmpty(), qPrintable(where));
                QVERIFY2(placeHolders(message.translation) == placeHolders(message.source),
                         qPrintable(where));
            }
        }

        const QStringList editions = baseNames().filter("-");
        QCOMPARE(editions.size(), 5);
        for (const QString &edition : editions) {
            QTranslator translator;
            QVERIFY(translator.load(catalogueFolder + edition + ".qm"));
            QVERIFY(translator.translate("Gallery", "libnocturne gallery")
                        .contains(edition.section('-', 1)));
            QHash<QString, QString> own;
            for (const Message &message : messagesOf(folder + edition + ".ts"))
                own.insert(message.key(), message.translation);
            const auto messages = messagesOf(folder + edition.section('-', 0, 0) + ".ts");
            QVERIFY(!messages.isEmpty());
            for (const Message &message : messages)
                QCOMPARE(message.in(translator), own.value(message.key(), message.translation));
        }
    }

private:
    /// The part of an image's pixels that can be seen.
    static double share(const QImage &image)
    {
        int seen = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                seen += qAlpha(image.pixel(x, y)) > 32;
        }
        return double(seen) / (image.width() * image.height());
    }
};

NOCTURNE_TEST_MAIN(TestResources)

#include "tst_resources.moc"
