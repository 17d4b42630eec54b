#include "droppeditems_p.h"

#include <QtCore/QDataStream>
#include <QtCore/QMimeData>
#include <QtCore/QVariant>
#include <QtGui/QDropEvent>

#include <algorithm>
#include <iterator>

namespace Nocturne {

namespace {

constexpr int mostDroppedRows = 100000;
constexpr int mostDroppedColumns = 100;

/// What items of other programs may carry. For larger types the toolkit believes any length that
/// stands before the elements.
constexpr quint32 soundTypes[] = {QMetaType::Bool,    QMetaType::Int,        QMetaType::UInt,
                                  QMetaType::Double,  QMetaType::LongLong,   QMetaType::ULongLong,
                                  QMetaType::QString, QMetaType::QByteArray, QMetaType::QSize,
                                  QMetaType::QColor,  QMetaType::QIcon};

/// Passes over one role of an item. False when its value is of another type or incomplete.
bool skipRole(QDataStream &stream)
{
    qint32 role = 0;
    stream >> role;
    const qint64 start = stream.device()->pos();
    quint32 type = 0;
    stream >> type;
    if (std::find(std::begin(soundTypes), std::end(soundTypes), type) == std::end(soundTypes))
        return false;
    stream.device()->seek(start);
    QVariant value;
    stream >> value;
    return stream.status() == QDataStream::Ok;
}

} // namespace

bool hasSoundItems(const QDropEvent *event)
{
    if (event->source())
        return true;
    const QByteArray items =
        event->mimeData()->data(QStringLiteral("application/x-qabstractitemmodeldatalist"));
    QDataStream stream(items);
    while (!stream.atEnd()) {
        qint32 row = 0;
        qint32 column = 0;
        quint32 roles = 0;
        stream >> row >> column >> roles;
        if (stream.status() != QDataStream::Ok || row < 0 || row >= mostDroppedRows || column < 0
            || column >= mostDroppedColumns)
            return false;
        for (; roles > 0; --roles) {
            if (!skipRole(stream))
                return false;
        }
    }
    return true;
}

} // namespace Nocturne
