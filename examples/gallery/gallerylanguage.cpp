#include "gallerylanguage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QTranslator>

namespace {

QTranslator *installedTranslator()
{
    return qApp->findChild<QTranslator *>(QString(), Qt::FindDirectChildrenOnly);
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
