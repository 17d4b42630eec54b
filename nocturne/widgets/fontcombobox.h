#ifndef NOCTURNE_FONTCOMBOBOX_H
#define NOCTURNE_FONTCOMBOBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QFontComboBox>

/// A font combo box that lets the host preview the fonts the user passes over in the popup.
///
/// It leaves the wheel to its parent. A slot that wants to delete it uses deleteLater(): the popup
/// may be closing at this moment.
///
/// \code
/// auto *fonts = new FontComboBox(panel);
/// connect(fonts, &FontComboBox::highlightFontChanged, title, &Title::previewFont);
/// connect(fonts, &QFontComboBox::currentFontChanged, title, &Title::setFont);
/// \endcode
class NOCTURNE_EXPORT FontComboBox : public QFontComboBox
{
    Q_OBJECT

public:
    explicit FontComboBox(QWidget *parent = nullptr);
    ~FontComboBox() override;

    /// Always 79 by 26 pixels.
    QSize sizeHint() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The font to preview. While the popup is open: the family that the pointer or the keys are
    /// on, with default size and weight. When the popup closes: the current font; and once more
    /// when the popup was closed by choosing another.
    void highlightFontChanged(const QFont &f);

protected:
    void wheelEvent(QWheelEvent *event) override;

private Q_SLOTS:
    void highlighted(const QString &value);

private:
    void endPreview();
    void previewChoice(const QFont &font);

    bool m_takingChoice = false; ///< from the closing of the popup to the end of that event
};

#endif
