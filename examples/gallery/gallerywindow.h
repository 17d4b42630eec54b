#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include "gallerypage.h"

#include <QtWidgets/QMainWindow>

class QAction;
class QActionGroup;
class QComboBox;
class QListWidget;
class QListWidgetItem;
class QScrollArea;
class QToolBar;
class SearchLineEdit;

/// The list of pages on the left, with a field that searches it, and the chosen one on the right.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows the page of that name; false when there is none.
    bool showPage(const QString &name);

protected:
    /// Builds everything anew in the new language, once the event that changed it is over.
    void changeEvent(QEvent *event) override;

private:
    void addFaces(QToolBar *bar);
    void fillList();
    void showRow(int row);
    void search(const QString &text);
    void retranslate();

    /// The page of an item; null for a heading.
    const GalleryPage *pageOf(const QListWidgetItem *item) const;

    const QVector<GalleryPage> m_pages;
    SearchLineEdit *m_search;
    QListWidget *m_list;
    QScrollArea *m_area;
    QComboBox *m_language;
    QAction *m_rightToLeft;
    QAction *m_enabled;
    QActionGroup *m_faces;
};

#endif
