#ifndef NOCTURNE_MODALDIALOG_H
#define NOCTURNE_MODALDIALOG_H

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <functional>

/// Runs \a work on the modal dialog that opens next. A dialog that is still open afterwards is
/// rejected, so that a failed check does not leave the test waiting.
template <typename Dialog>
void whenOpen(const std::function<void(Dialog *)> &work)
{
    QTimer::singleShot(0, qApp, [work] {
        const QPointer<Dialog> dialog(qobject_cast<Dialog *>(QApplication::activeModalWidget()));
        QVERIFY(dialog);
        work(dialog);
        if (dialog && dialog->isVisible())
            dialog->reject();
    });
}

inline void clickButton(QDialog *dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

#endif
