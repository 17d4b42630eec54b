#ifndef NOCTURNE_TREEWIDGET_H
#define NOCTURNE_TREEWIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPersistentModelIndex>
#include <QtWidgets/QTreeWidget>

/// A tree on a dark background with soft shadows at the edges behind which there is more.
///
/// The shadow at the top shows as soon as the tree is scrolled down, the one at the bottom while
/// verticalOffset() is less than the maximum of the vertical scroll bar. Owns its items, as every
/// QTreeWidget does. Items of another program are declined when they carry what the toolkit could
/// not take safely.
///
/// \code
/// auto *bins = new TreeWidget(parent);
/// bins->setHeaderHidden(true);
/// bins->addTopLevelItem(new QTreeWidgetItem({tr("Clips")}));
/// \endcode
class NOCTURNE_EXPORT TreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TreeWidget(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

private:
    struct Shadows
    {
        bool top = false;
        bool bottom = false;
    };

    Shadows shadows();
    bool offsetIsBelowMaximum();
    int scrolledPixels(int dy) const;
    QRegion underBars() const;

    Shadows m_painted;

    // The first m_measuredRows rows are m_measuredHeight pixels high, m_nextRow follows them; good
    // for the scroll bar maximum m_measuredFor, none when that is negative.
    int m_measuredFor = -1;
    QPersistentModelIndex m_nextRow;
    int m_measuredRows = 0;
    int m_measuredHeight = 0;
};

#endif
