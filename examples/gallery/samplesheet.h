#ifndef SAMPLESHEET_H
#define SAMPLESHEET_H

#include "gallerypage.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QGridLayout;
class QIcon;

/// A page of labelled rows, each with one or more samples, under headings.
class SampleSheet : public QWidget
{
public:
    explicit SampleSheet(QWidget *parent = nullptr);

    /// Begins a group of rows; \a columns name the samples below.
    void addHeading(const QString &text, const QStringList &columns = QStringList());
    /// Adds a row. The sheet takes the samples.
    void addRow(const QString &label, const QVector<QWidget *> &samples);
    /// Adds a sample across the whole sheet.
    void addWide(QWidget *sample);

private:
    QGridLayout *m_grid;
    int m_row = 0;
};

/// Shows another widget, such as a menu or the list of a combo box, that would otherwise only be
/// seen while it is open.
class Picture : public QWidget
{
public:
    /// Takes \a original, which stays hidden.
    explicit Picture(QWidget *original, QWidget *parent = nullptr);
    ~Picture() override;

    /// A picture of \a original alone, which is a part of \a owner; takes \a owner.
    static Picture *of(QWidget *original, QWidget *owner);

    QSize sizeHint() const override { return m_original->size(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *m_original;
    QWidget *m_owner;
};

/// A plain symbol to stand for an icon: a disc on a transparent ground.
QIcon sampleIcon(const QColor &color = QColor(65, 155, 249));

#endif
