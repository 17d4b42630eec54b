#include "qmessageboxex.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>

QMap<QMessageBox::StandardButton, QString> QMessageBoxEx::m_customButtonNames;

QMessageBoxEx::QMessageBoxEx(QWidget *parent)
    : QMessageBox(parent)
{}

QMessageBoxEx::~QMessageBoxEx() = default;

void QMessageBoxEx::setCustomTextForButton(QMessageBox::StandardButton button, const QString &text)
{
    m_customButtonNames.insert(button, text);
}

void QMessageBoxEx::setCustomTextForButtons(QMessageBoxEx &box)
{
    for (auto it = m_customButtonNames.cbegin(); it != m_customButtonNames.cend(); ++it) {
        if (QAbstractButton *button = box.button(it.key()))
            button->setText(it.value());
    }
}

QMessageBox::StandardButton QMessageBoxEx::information(QWidget *parent, const QString &title,
                                                       const QString &text,
                                                       QMessageBox::StandardButtons buttons,
                                                       QMessageBox::StandardButton defaultButton)
{
    return run(QMessageBox::Information, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton QMessageBoxEx::question(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    return run(QMessageBox::Question, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton QMessageBoxEx::warning(QWidget *parent, const QString &title,
                                                   const QString &text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return run(QMessageBox::Warning, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton QMessageBoxEx::critical(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    return run(QMessageBox::Critical, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton QMessageBoxEx::run(QMessageBox::Icon icon, QWidget *parent,
                                               const QString &title, const QString &text,
                                               QMessageBox::StandardButtons buttons,
                                               QMessageBox::StandardButton defaultButton)
{
    // Not on the stack: a parent that is deleted while the box is open takes the box along.
    const QPointer<QMessageBoxEx> box(new QMessageBoxEx(parent));
    box->setIcon(icon);
    box->setWindowTitle(title);
    box->setText(text);
    box->setStandardButtons(buttons);
    box->setDefaultButton(defaultButton);
    setCustomTextForButtons(*box);
    const int result = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(result);
}
