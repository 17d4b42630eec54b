#include "formwidget.h"

#include "containers.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtGui/QIcon>

#include <memory>

namespace {

struct ClassComment
{
    const char *name;
    const char *text;
};

#define CLASS_COMMENT(name, text) {name, text},
constexpr ClassComment classComments[] = {
#include "classcomments.h"
};
#undef CLASS_COMMENT

QString commentOf(const char *name)
{
    for (const ClassComment &comment : classComments) {
        if (qstrcmp(comment.name, name) == 0)
            return QString::fromUtf8(comment.text);
    }
    return QString();
}

/// The theme that the widgets paint with. The program may have one of its own.
void provideTheme()
{
    if (DarkUX::getInstancePtr())
        return;
    static std::unique_ptr<DarkUX> theme;
    theme = std::make_unique<DarkUX>();
    // Nobody installs the style, so nobody else would delete it.
    const std::unique_ptr<DarkFusionStyle> unusedStyle(theme->style());
}

} // namespace

QString FormWidget::name() const
{
    return QLatin1String(m_kind.name);
}

QString FormWidget::group() const
{
    return QStringLiteral("Nocturne");
}

QString FormWidget::toolTip() const
{
    const QString text = commentOf(m_kind.name);
    const int end = text.indexOf(QLatin1Char('\n'));
    return end < 0 ? text : text.left(end);
}

QString FormWidget::whatsThis() const
{
    return commentOf(m_kind.name);
}

QString FormWidget::includeFile() const
{
    return QStringLiteral("<nocturne/%1>").arg(name());
}

QIcon FormWidget::icon() const
{
    return QIcon(QStringLiteral(":/resources/appicons/") + QLatin1String(m_kind.icon));
}

QWidget *FormWidget::createWidget(QWidget *parent)
{
    provideTheme();
    return m_kind.create(parent);
}

void FormWidget::initialize(QDesignerFormEditorInterface *core)
{
    if (m_initialized)
        return;
    m_initialized = true;
    registerContainers(core);
}

QString FormWidget::domXml() const
{
    QString objectName = name();
    objectName[0] = objectName.at(0).toLower();
    QString custom;
    if (*m_kind.addPageMethod) {
        custom = QStringLiteral("<customwidgets><customwidget><class>%1</class><extends>QFrame"
                                "</extends><addpagemethod>%2</addpagemethod></customwidget>"
                                "</customwidgets>")
                     .arg(name(), QLatin1String(m_kind.addPageMethod));
    }
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%3</width>"
                          "<height>%4</height></rect></property>%5</widget>%6</ui>")
        .arg(name(), objectName)
        .arg(m_kind.size.width())
        .arg(m_kind.size.height())
        .arg(QLatin1String(m_kind.xml), custom);
}
