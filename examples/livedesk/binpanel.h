#ifndef BINPANEL_H
#define BINPANEL_H

#include <QtWidgets/QWidget>

class CroppingLabel;
class Desk;
class ListWidget;
class QListWidgetItem;
class QPushButton;

/// The clips: dropped from outside, moved by dragging, renamed below the list.
class BinPanel : public QWidget
{
    Q_OBJECT

public:
    explicit BinPanel(Desk *desk, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void retranslate();
    void move(QListWidgetItem *item, QListWidgetItem *target);
    void rename(const QString &name);

    Desk *m_desk;
    ListWidget *m_list;
    CroppingLabel *m_name;
    QPushButton *m_remove;
};

#endif
