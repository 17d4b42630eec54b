#ifndef FORMWIDGET_H
#define FORMWIDGET_H

#include <QtCore/QSize>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// What Designer's widget box has to know of a class.
struct WidgetKind
{
    const char *name;
    const char *icon; ///< file below ":/resources/appicons/"
    QWidget *(*create)(QWidget *parent);
    QSize size;                     ///< on a new form
    bool container = false;         ///< takes pages or children
    const char *xml = "";           ///< properties and children of a new one
    const char *addPageMethod = ""; ///< slot that takes a child, where Designer knows none
};

/// One class in Designer's widget box, group "Nocturne".
class FormWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit FormWidget(const WidgetKind &kind)
        : m_kind(kind)
    {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return m_kind.container; }
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    const WidgetKind &m_kind;
    bool m_initialized = false;
};

#endif
