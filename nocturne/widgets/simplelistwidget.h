#ifndef NOCTURNE_SIMPLELISTWIDGET_H
#define NOCTURNE_SIMPLELISTWIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QListWidget>

/// A list whose dragged items look as they do in the list, where they are in the list.
///
/// A drag is a move unless the user or the target wants otherwise. The list doesn't remove what
/// another widget has taken; it is for the host to do so. Items of another program are declined
/// when they carry what the toolkit could not take safely.
///
/// \code
/// auto *scenes = new SimpleListWidget(panel);
/// scenes->setSelectionMode(QAbstractItemView::ExtendedSelection);
/// scenes->setDragDropMode(QAbstractItemView::InternalMove);
/// \endcode
class NOCTURNE_EXPORT SimpleListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit SimpleListWidget(QWidget *parent = nullptr);
    ~SimpleListWidget() override;

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dropEvent(QDropEvent *event) override;

private:
    QPixmap dragPixmap() const;
};

#endif
