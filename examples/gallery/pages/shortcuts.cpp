#include "gallerypage.h"

#include <nocturne/KeySequenceEdit>

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

#include <QAction>

namespace {

constexpr int longestLog = 500;

QPushButton *addButton(QGridLayout *grid, int row, int column, const char *name)
{
    auto *button = new QPushButton(Gallery::tr(name));
    grid->addWidget(button, row, column);
    return button;
}

/// A row of the settings: an action of the page, its shortcut field and what can be done with it.
KeySequenceEdit *addShortcut(QGridLayout *grid, const char *name, const char *keys, QWidget *page,
                             QPlainTextEdit *log)
{
    const int row = grid->rowCount();
    const QString title = Gallery::tr(name);
    const QKeySequence standard(QLatin1String{keys});

    auto *action = new QAction(title, page);
    action->setShortcut(standard);
    page->addAction(action);
    QObject::connect(action, &QAction::triggered, log, [log, title] {
        log->appendPlainText(Gallery::tr("%1: triggered").arg(title));
    });

    auto *field = new KeySequenceEdit;
    field->setMinimumSize(160, 26);
    field->setKeySequence(standard);
    field->setOldKeySequence(standard);
    field->setDefaultKeySequence(standard);
    QObject::connect(field, &KeySequenceEdit::keySequenceChanged, action,
                     [log, title, action](const QKeySequence &sequence) {
                         action->setShortcut(sequence);
                         log->appendPlainText(QStringLiteral("%1: %2").arg(
                             title, sequence.toString(QKeySequence::NativeText)));
                     });

    grid->addWidget(new QLabel(title), row, 0);
    grid->addWidget(field, row, 1);
    const auto showInAction = [field, action] { action->setShortcut(field->keySequence()); };
    QPushButton *clear = addButton(grid, row, 2, QT_TRANSLATE_NOOP("Gallery", "Clear"));
    QObject::connect(clear, &QPushButton::clicked, field, &KeySequenceEdit::clearKeySequence);
    QPushButton *undo = addButton(grid, row, 3, QT_TRANSLATE_NOOP("Gallery", "Undo"));
    QObject::connect(undo, &QPushButton::clicked, field, [field, showInAction] {
        field->setKeySequence(field->oldKeySequence());
        showInAction();
    });
    QPushButton *reset = addButton(grid, row, 4, QT_TRANSLATE_NOOP("Gallery", "Default"));
    QObject::connect(reset, &QPushButton::clicked, field, [field, showInAction] {
        field->defaultKeySequence();
        showInAction();
    });
    return field;
}

QWidget *createShortcutsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *columns = new QHBoxLayout(page);
    auto *log = new QPlainTextEdit;
    log->setReadOnly(true);
    log->setMaximumBlockCount(longestLog);

    auto *box = new QGroupBox(Gallery::tr("Click a field, then press the keys"));
    auto *grid = new QGridLayout(box);
    KeySequenceEdit *play =
        addShortcut(grid, QT_TRANSLATE_NOOP("Gallery", "Play"), "F5", page, log);
    KeySequenceEdit *stop =
        addShortcut(grid, QT_TRANSLATE_NOOP("Gallery", "Stop"), "Shift+F5", page, log);
    addShortcut(grid, QT_TRANSLATE_NOOP("Gallery", "Next cue"), "Ctrl+Right", page, log);
    addShortcut(grid, QT_TRANSLATE_NOOP("Gallery", "Blackout"), "Ctrl+Shift+B", page, log);
    // Somebody has pressed other keys, and used them.
    for (KeySequenceEdit *field : {play, stop}) {
        QKeyEvent press(QEvent::KeyPress, field == play ? Qt::Key_F8 : Qt::Key_F9,
                        Qt::ControlModifier);
        QCoreApplication::sendEvent(field, &press);
        for (QAction *action : page->actions())
            action->trigger();
    }
    KeySequenceEdit *disabled =
        addShortcut(grid, QT_TRANSLATE_NOOP("Gallery", "Disabled"), "Ctrl+Alt+D", page, log);
    disabled->setEnabled(false);
    auto *hint = new QLabel(
        Gallery::tr("The shortcuts are those of this page. They work as long as no field has "
                    "the focus."));
    hint->setWordWrap(true);
    grid->addWidget(hint, grid->rowCount(), 0, 1, 5);
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(1, 1);

    columns->addWidget(box);
    columns->addWidget(log, 1);
    return page;
}

} // namespace

GALLERY_PAGE(610, "shortcuts", QT_TRANSLATE_NOOP("Gallery", "Shortcuts"), createShortcutsPage)
