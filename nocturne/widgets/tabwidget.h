#ifndef NOCTURNE_TABWIDGET_H
#define NOCTURNE_TABWIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QTabWidget>

/// A tab widget with a TabBar and a plain page area in the theme's colours.
///
/// Pages belong to the tab widget. With a single page whose tab has no text, the page area is
/// closed off at its left edge.
///
/// \code
/// auto *tabs = new TabWidget(parent);
/// tabs->setTabBarWidth(120);
/// tabs->addTab(new QWidget, tr("Media"));
/// \endcode
class NOCTURNE_EXPORT TabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit TabWidget(QWidget *parent = nullptr);

    /// Makes the tabs with text \a width pixels wide; see TabBar::setWidth(). Does nothing when a
    /// subclass has replaced the TabBar by a bar of another class.
    void setTabBarWidth(int width);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
