#ifndef NOCTURNE_ILISTITEM_H
#define NOCTURNE_ILISTITEM_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QString>

/// Lets ListWidget::findItem() find a host's item by a text that identifies it.
///
/// A host derives its item class from this and from QListWidgetItem; the interface owns nothing.
///
/// \code
/// class ClipItem : public QListWidgetItem, public IListItem
/// {
/// public:
///     explicit ClipItem(const QString &path) : m_path(path) {}
///     const QString &itemKey() const override { return m_path; }
///
/// private:
///     QString m_path;
/// };
/// \endcode
class NOCTURNE_HOSTKIT IListItem
{
public:
    virtual ~IListItem() = default;

    /// The text that identifies the item. It should differ from those of the other items in the
    /// list; of equal ones the first is found.
    virtual const QString &itemKey() const = 0;
};

#endif
