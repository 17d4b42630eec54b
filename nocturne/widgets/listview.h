#ifndef NOCTURNE_LISTVIEW_H
#define NOCTURNE_LISTVIEW_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QListView>

/// A rounded grey field with the behaviour of a list: model, selection, scrolling, drag and drop.
///
/// It draws no items. Derive from it and draw them over the field, or use it as the well that
/// item widgets stand in.
///
/// \code
/// auto *well = new ListView(parent);
/// well->setModel(model);
/// well->setIndexWidget(model->index(0, 0), new ClipButton);
/// \endcode
class NOCTURNE_EXPORT ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
