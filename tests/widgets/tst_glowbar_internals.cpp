#include "testsupport.h"

#include <nocturne/painting/glowbar_p.h>
#include <nocturne/painting/themepaint_p.h>
#include <nocturne/painting/toolkitexports_p.h>

#include <QtGui/QPixmap>

namespace {

/// The whole bar blurred in one piece.
QImage blurredAtOnce(const Nocturne::GlowBar &bar)
{
    QImage sharp(int(bar.size.width()), int(bar.size.height()), QImage::Format_ARGB32);
    sharp.fill(Qt::transparent);
    QPainter sharpPainter(&sharp);
    sharpPainter.setRenderHint(QPainter::Antialiasing);
    sharpPainter.setPen(Qt::NoPen);
    sharpPainter.setBrush(QColor(65, 155, 249));
    sharpPainter.drawRoundedRect(QRectF(QPointF(), bar.size).marginsRemoved(bar.margins),
                                 bar.cornerRadius, bar.cornerRadius);
    sharpPainter.end();
    QPixmap soft(sharp.size());
    soft.fill(Qt::transparent);
    QPainter painter(&soft);
    qt_blurImage(&painter, sharp, 3.0, false, false);
    painter.end();
    return soft.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class TestGlowBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsABlurOfTheWholeBar_data()
    {
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("topMargin");
        QTest::newRow("groove") << 5.0 << 1.0;
        QTest::newRow("full") << 22.0 << 0.0;
        QTest::newRow("thin") << 1.0 << 0.0;
        QTest::newRow("tall") << 60.0 << 0.0;
    }

    void equalsABlurOfTheWholeBar()
    {
        QFETCH(double, height);
        QFETCH(double, topMargin);
        for (double width : {1.0, 3.4, 40.0, 95.9, 96.0, 97.0, 97.3, 130.5, 350.75, 1200.2}) {
            const Nocturne::GlowBar bar{QSizeF(width, height),
                                        QMarginsF(topMargin, topMargin, topMargin, 0), 3.0};
            QImage pieced(int(width) + 4, int(height) + 2, QImage::Format_ARGB32_Premultiplied);
            pieced.fill(Qt::transparent);
            QPainter painter(&pieced);
            Nocturne::drawGlowBar(&painter, QPoint(2, 1), bar);
            painter.end();
            const QImage whole = blurredAtOnce(bar);
            QCOMPARE(pieced.copy(2, 1, int(width), int(height)), whole);
        }
    }
};

NOCTURNE_TEST_MAIN(TestGlowBar)

#include "tst_glowbar_internals.moc"
