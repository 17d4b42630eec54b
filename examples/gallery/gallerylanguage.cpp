#include "gallerylanguage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QComboBox>

namespace {

QTranslator *installedTranslator()
{
    return qApp->findChild<QTranslator *>(QString(), Qt::FindDirectChildrenOnly);
}

/// "ko_KR-Heron" as "한국어 (Heron)".
QString catalogueTitle(const QString &name)
{
    const int dash = name.indexOf(QLatin1Char('-'));
    const QString language = QLocale(name.left(dash)).nativeLanguageName();
    return dash < 0 ? language : QStringLiteral("%1 (%2)").arg(language, name.mid(dash + 1));
}

} // namespace

QFileInfoList galleryCatalogues()
{
    return QDir(QStringLiteral(":/resources/locales")).entryInfoList(QDir::Files, QDir::Name);
}

QString galleryCatalogue()
{
    const QTranslator *translator = installedTranslator();
    return translator ? translator->filePath() : QString();
}

bool setGalleryCatalogue(const QString &path)
{
    delete installedTranslator();
    if (path.isEmpty())
        return true;
    auto *translator = new QTranslator(qApp);
    if (translator->load(path))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

QComboBox *createGalleryLanguageBox()
{
    auto *box = new QComboBox;
    box->addItem(QStringLiteral("English"), QString());
    for (const QFileInfo &catalogue : galleryCatalogues())
        box->addItem(catalogueTitle(catalogue.completeBaseName()), catalogue.filePath());
    box->setCurrentIndex(qMax(0, box->findData(galleryCatalogue())));
    QObject::connect(box, QOverload<int>::of(&QComboBox::activated), box,
                     [box](int index) { setGalleryCatalogue(box->itemData(index).toString()); });
    return box;
}
