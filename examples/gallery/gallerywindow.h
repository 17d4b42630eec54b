#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include "gallerypage.h"

#include <QtWidgets/QMainWindow>

class QAction;
class QActionGroup;
class QListWidget;
class QScrollArea;
class QToolBar;

/// The list of pages on the left, the chosen one on the right.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    /// Shows the page of that name; false when there is none.
    bool showPage(const QString &name);

protected:
    /// Builds everything anew in the new language, once the event that changed it is over.
    void changeEvent(QEvent *event) override;

private:
    void addFaces(QToolBar *bar);
    void showRow(int row);
    void retranslate();

    QVector<GalleryPage> m_pages;
    QListWidget *m_list;
    QScrollArea *m_area;
    QAction *m_rightToLeft;
    QAction *m_enabled;
    QActionGroup *m_faces;
};

#endif
