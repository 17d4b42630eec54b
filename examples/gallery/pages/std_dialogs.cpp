#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QWizard>

namespace {

QWidget *wizard()
{
    auto *wizard = new QWizard;
    wizard->setWindowFlags(Qt::Widget);
    wizard->setOption(QWizard::HaveHelpButton);
    auto *page = new QWizardPage;
    page->setTitle(Gallery::tr("New show"));
    page->setSubTitle(Gallery::tr("What is it called?"));
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(new QLineEdit(Gallery::tr("Evening show")));
    layout->addWidget(new QCheckBox(Gallery::tr("Copy the sources of the last one")));
    wizard->addPage(page);
    wizard->addPage(new QWizardPage);
    wizard->setFixedSize(480, 300);
    return wizard;
}

QWidget *messageBox(QMessageBox::Icon icon, const QString &text)
{
    auto *box = new QMessageBox(icon, QString(), text,
                                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    box->setInformativeText(Gallery::tr("The rundown was changed since it was last saved."));
    return box;
}

/// A tool tip that stays.
class ToolTip : public QLabel
{
public:
    explicit ToolTip(const QString &text)
        : QLabel(text)
    {
        setMargin(4);
        setForegroundRole(QPalette::ToolTipText);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QStyleOptionFrame option;
        option.initFrom(this);
        QStylePainter(this).drawPrimitive(QStyle::PE_PanelTipLabel, option);
        QLabel::paintEvent(event);
    }
};

QWidget *rubberBands()
{
    auto *ground = new QLabel(Gallery::tr("Rubber bands"));
    ground->setAlignment(Qt::AlignCenter);
    ground->setFrameStyle(QFrame::StyledPanel);
    ground->setMinimumSize(260, 100);
    auto *area = new QRubberBand(QRubberBand::Rectangle, ground);
    area->setGeometry(20, 15, 110, 60);
    area->show();
    auto *line = new QRubberBand(QRubberBand::Line, ground);
    line->setGeometry(200, 10, 6, 80);
    line->show();
    return ground;
}

QWidget *createDialogsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(wizard(), 0, 0, 2, 1);
    grid->addWidget(messageBox(QMessageBox::Question, Gallery::tr("Save before closing?")), 0, 1);
    grid->addWidget(messageBox(QMessageBox::Warning, Gallery::tr("A source is missing.")), 1, 1);
    grid->addWidget(rubberBands(), 2, 0);
    auto *tip = new QHBoxLayout;
    tip->addWidget(new ToolTip(Gallery::tr("A tool tip")), 0, Qt::AlignCenter);
    grid->addLayout(tip, 2, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(2, 1);
    return page;
}

} // namespace

GALLERY_PAGE(190, "std_dialogs", QT_TRANSLATE_NOOP("Gallery", "Dialogs and tips"),
             createDialogsPage)
