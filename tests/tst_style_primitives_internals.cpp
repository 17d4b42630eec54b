#include "stylepainting.h"

#include <nocturne/style/stylehelpers_p.h>

#include <QtGui/QPixmapCache>

using namespace StylePainting;

/// Which panels and header sections come out of the pixmap cache: each is looked up under its key,
/// then replaced there, so that what is drawn next tells where it came from.
class TestStylePrimitivesInternals : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }
    void cleanup() { QPixmapCache::clear(); }

    void buttonPanel();
    void headerSection();
    void keptDrawing_data();
    void keptDrawing();

private:
    template <typename Paint>
    QColor middle(Paint paint) const
    {
        return unitColor(picture(paint), 20, 13);
    }
    static bool replaceCached(const QString &key, const QSize &size)
    {
        if (!QPixmapCache::find(key, static_cast<QPixmap *>(nullptr)))
            return false;
        QPixmap mark = StyleHelpers::styleCachePixmap(size);
        mark.fill(Qt::green);
        return QPixmapCache::insert(key, mark);
    }

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
};

void TestStylePrimitivesInternals::buttonPanel()
{
    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 40, 24));
    const auto paint = [&](QPainter &painter) {
        m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
    };
    middle(paint);
    const auto key = [&](const QString &prefix) {
        return StyleHelpers::styleCacheKey(prefix, &option, option.rect.size());
    };
    QVERIFY(replaceCached(key(QStringLiteral("pushbutton-0")), option.rect.size()));
    option.rect.moveTo(2, 3);
    QCOMPARE(middle(paint), QColor(Qt::green));

    // Another palette, state, size or default flag has an entry of its own.
    const auto isKept = [&](const std::function<void(QStyleOptionButton *)> &change) {
        const QStyleOptionButton kept = option;
        change(&option);
        const QColor color = middle(paint);
        option = kept;
        return color == Qt::green;
    };
    QVERIFY(!isKept([](auto *other) { other->palette.setColor(QPalette::Window, Qt::gray); }));
    QVERIFY(!isKept([](auto *other) { other->state |= QStyle::State_Sunken; }));
    QVERIFY(!isKept([](auto *other) { other->rect.setWidth(41); }));
    QVERIFY(!isKept([](auto *other) { other->features = QStyleOptionButton::DefaultButton; }));
    QVERIFY(replaceCached(key(QStringLiteral("pushbutton-1")), option.rect.size()));
}

void TestStylePrimitivesInternals::headerSection()
{
    auto option = makeOption<QStyleOptionHeader>(QRect(0, 0, 40, 24));
    const auto paint = [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_HeaderSection, &option, &painter);
    };
    middle(paint);
    QString key =
        StyleHelpers::styleCacheKey(QStringLiteral("headersection"), &option, option.rect.size());
    key += QString::number(-int(option.position)) + QString::number(-int(option.orientation));
    QVERIFY(replaceCached(key, option.rect.size()));
    QCOMPARE(middle(paint), QColor(Qt::green));
    option.position = QStyleOptionHeader::End;
    QVERIFY(middle(paint) != QColor(Qt::green));
    option.position = QStyleOptionHeader::Beginning;
    option.orientation = Qt::Vertical;
    QVERIFY(middle(paint) != QColor(Qt::green));
}

void TestStylePrimitivesInternals::keptDrawing_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<int>("primitive"); // or -1
    QTest::addColumn<int>("control");
    QTest::addColumn<QRect>("kept"); // for an option at 2, 2 of 40 x 24
    QTest::newRow("check box") << "checkbox" << int(QStyle::PE_IndicatorCheckBox) << -1
                               << QRect(2, 2, 40, 24);
    // A circle as wide as the rectangle, one unit right of and below its middle.
    QTest::newRow("radio button") << "radiobutton" << int(QStyle::PE_IndicatorRadioButton) << -1
                                  << QRect(2, -6, 40, 40);
    QTest::newRow("groove") << "progressgroove" << -1 << int(QStyle::CE_ProgressBarGroove)
                            << QRect(2, 1, 40, 25);
    QTest::newRow("busy bar") << "progressbusy" << -1 << int(QStyle::CE_ProgressBarContents)
                              << QRect(2, 2, 40, 24);
}

void TestStylePrimitivesInternals::keptDrawing()
{
    QFETCH(QString, prefix);
    QFETCH(int, primitive);
    QFETCH(int, control);
    QFETCH(QRect, kept);
    auto button = makeOption<QStyleOptionButton>(QRect(2, 2, 40, 24));
    auto progress = makeOption<QStyleOptionProgressBar>(button.rect);
    const auto paint = [&](QPainter &painter) {
        if (control < 0)
            m_style->drawPrimitive(QStyle::PrimitiveElement(primitive), &button, &painter);
        else
            m_style->drawControl(QStyle::ControlElement(control), &progress, &painter);
    };
    middle(paint);
    const QStyleOption *option = control < 0 ? static_cast<QStyleOption *>(&button) : &progress;
    QVERIFY(replaceCached(StyleHelpers::styleCacheKey(prefix, option, kept.size()), kept.size()));
    const QImage second = picture(paint);
    QCOMPARE(painted(second), QRegion(kept & everything));
    QVERIFY(isFilled(second, kept & everything, Qt::green));

    // Where it would be blurred, nothing kept is drawn.
    const qreal other = qApp->devicePixelRatio() * 1.5;
    const QImage finer = TestSupport::paintOn(canvas, background, paint, other);
    for (int x = 0; x < finer.width(); ++x)
        QVERIFY(finer.pixelColor(x, finer.height() / 4) != QColor(Qt::green));
}

NOCTURNE_TEST_MAIN(TestStylePrimitivesInternals)
#include "tst_style_primitives_internals.moc"
