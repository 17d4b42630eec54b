#ifndef NOCTURNE_TABBAR_H
#define NOCTURNE_TABBAR_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QTabBar>

/// A tab bar in the theme's colours whose tabs with text all have the same width.
///
/// A tab without text fills what the others leave of the bar; add one last to keep the tabs at
/// one end of a wide bar. Texts are never elided and are drawn as they stand, ampersands included.
/// Owned by its parent; TabWidget creates its own.
///
/// \code
/// auto *bar = new TabBar(parent);
/// bar->setWidth(120);
/// bar->addTab(tr("Media"));
/// bar->addTab(QString()); // takes the rest
/// \endcode
class NOCTURNE_EXPORT TabBar : public QTabBar
{
    Q_OBJECT

public:
    /// Expanding, in document mode, with tabs 90 pixels wide.
    explicit TabBar(QWidget *parent = nullptr);

    /// Makes every tab with text \a width pixels wide and lays the bar out anew.
    void setWidth(int width);

protected:
    /// 30 pixels high; as wide as set with setWidth(), or for a tab without text what is left of
    /// the bar, at least 0.
    QSize tabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    int m_tabWidth = 90;
};

#endif
