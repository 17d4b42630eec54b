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

const char icons[] =
    "addfiles.png addfiles_on.png align-bottom.png align-horizon.png align-left.png "
    "align-right.png align-top.png align-vertical.png appicon.png appicon_fennec.png "
    "appicon_heron.png appicon_larkspur.png appicon_marlin.png appicon_osprey.jpg "
    "appicon_wren.png arrow-down.png arrow-up.png arrowdown.png arrowleft.png arrowright.png "
    "arrowup.png audio.svg autokeyframe.png autokeyframe_enable.png autoplay.png autoplay_1.png "
    "autoplay_on.png backplay.png backplay_on.png bus_a.png bus_a_on.png bus_b.png bus_b_on.png "
    "chain.png chain_on.png collapsible-down.png collapsible-right.png copy.png deleffect.png "
    "down.png exported.png eye.png filenew.png fileopen.png filesave.png firstframe.png "
    "firstframe_on.png forcepgm.png forcepgm_on.png fullscreen.png gear.png grab.png "
    "grab_on.png headphone.png headphone_on.png info.png invisible.png lastframe.png "
    "lastframe_on.png leftdown.png leftup.png list.png list_1.png list_on.png lock.png "
    "lock_unlock.png loop.png loop_1.png loop_on.png macro_add.png macro_add_on.png "
    "macro_duplicate.png macro_duplicate_on.png macro_remove.png macro_remove_on.png markin.png "
    "markin_on.png markout.png markout_on.png mc.png multiselect.png multiselect_on.png "
    "music.png navi_next.png navi_next_on.png navi_priv.png navi_priv_on.png navi_reload.png "
    "navi_reload_on.png nextframe.png nextframe_on.png output.png output_1.png "
    "output_active.png output_active_1.png play.png play_on.png plus.png previousframe.png "
    "previousframe_on.png recording.png recording_active.png refresh.png refresh_on.png "
    "rightdown.png rightup.png search.png search_on.png speaker.png speaker_off.png "
    "speaker_on.png splash.png splash_fennec.png splash_heron.png splash_larkspur.png "
    "splash_marlin.png splash_osprey.png splash_wren.png streaming.png streaming_active.png "
    "textbold.png textcenter.png textitalic.png textleft.png textright.png textunderline.png "
    "tool_bezier.png tool_bezier_select.png tool_ellipse.png tool_gradient_tool.png "
    "tool_hand.png tool_polygon.png tool_rectangle.png tool_select.png tool_star.png "
    "tool_text.png unexported.png up.png visible.png";

const char catalogues[] =
    "de_DE.qm es_ES.qm fr_FR.qm it_IT.qm ja_JP.qm ko_KR.qm ko_KR-Heron.qm pt_PT.qm "
    "pt_PT-Osprey.qm ru_RU.qm zh_CN-Fennec.qm zh_CN-Larkspur.qm zh_CN-Marlin.qm";

const QString iconFolder = ":/resources/appicons/";
const QString catalogueFolder = ":/resources/locales/";

QStringList split(const char *names)
{
    return QString::fromLatin1(names).split(' ');
}

/// The catalogues without their suffix.
QStringList baseNames()
{
    return split(catalogues).replaceInStrings(".qm", "");
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

    void holdsExactlyTheListedFiles()
    {
        QStringList expected;
        for (const QString &icon : split(icons))
            expected << iconFolder + icon;
        for (const QString &catalogue : split(catalogues))
            expected << catalogueFolder + catalogue;
        QCOMPARE(expected.size(), 139 + 13);
        QStringList actual;
        QDirIterator it(":/resources", QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            actual << it.next();
        expected.sort();
        actual.sort();
        QCOMPARE(actual, expected);
        QVERIFY(!QFile::exists(iconFolder + "FileOpen.png"));
    }

    /// Neutral locale, zlib where it saves at least 70 percent, a time of change.
    void storage()
    {
        const QStringList files = QDir(iconFolder).entryList() + QDir(catalogueFolder).entryList();
        for (const QString &file : files) {
            QResource resource(iconFolder + file);
            if (!resource.isValid())
                resource.setFileName(catalogueFolder + file);
            const QByteArray data = resource.uncompressedData();
            const int saved = 100 * (data.size() - qCompress(data).size()) / data.size();
            const bool packed = resource.compressionAlgorithm() != QResource::NoCompression;
            QVERIFY2(packed == (saved >= 70), qPrintable(file));
            QVERIFY(!packed || resource.compressionAlgorithm() == QResource::ZlibCompression);
            QVERIFY(resource.lastModified().isValid());
            QResource elsewhere(resource.fileName(), QLocale("tr_TR"));
            QVERIFY(elsewhere.data() == resource.data());
        }
    }

    /// A state never looks like the plain image, and no two plain images look alike.
    void images()
    {
        QHash<QByteArray, QString> known;
        for (const QString &icon : split(icons)) {
            const QByteArray name = icon.toLatin1();
            if (icon.endsWith(".svg")) {
                QFile file(iconFolder + icon);
                QVERIFY(file.open(QIODevice::ReadOnly));
                QXmlStreamReader xml(&file);
                QVERIFY(xml.readNextStartElement());
                QCOMPARE(xml.name(), QString("svg"));
                continue;
            }
            QImageReader reader(iconFolder + icon);
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
        QCOMPARE(german.translate("LineEditButton", "Clear"), QString("Leeren"));
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
