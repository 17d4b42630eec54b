#ifndef NOCTURNE_MENU_H
#define NOCTURNE_MENU_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QMenu>

/// A menu on a translucent window that says when the pointer leaves it.
///
/// \code
/// auto *menu = new Menu(tr("Transition"), this);
/// menu->addAction(tr("Cut"));
/// connect(menu, &Menu::leaved, menu, &QMenu::close);
/// \endcode
class NOCTURNE_EXPORT Menu : public QMenu
{
    Q_OBJECT

public:
    explicit Menu(const QString &title, QWidget *parent = nullptr);
    explicit Menu(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The pointer left the menu. Emitted instead of what a menu otherwise does then: the
    /// highlighted action stays highlighted. A slot that wants to delete the menu uses
    /// deleteLater(): the toolkit also sends a menu this event while it shows it or opens a
    /// sub-menu, and goes on with it afterwards.
    void leaved();

protected:
    void leaveEvent(QEvent *event) override;
};

#endif
