#pragma once

#include <QVariant>
#include <QVariantList>

namespace tarvelo::store {

// Keeps a list of bookmarks. Nothing in the program uses it yet; it is there for whoever keeps
// marks beside lectures. Indexes count from 0; one that is out of range changes nothing.
class ArrayManager final
{
public:
    const QVariantList &bookmarksArray() const { return m_bookmarksArray; }
    int countOfBookmarksArray() const { return static_cast<int>(m_bookmarksArray.size()); }
    // Invalid when there is none at the index.
    QVariant objectInBookmarksArrayAtIndex(int index) const;

    void setBookmarksArray(const QVariantList &bookmarks) { m_bookmarksArray = bookmarks; }
    void insertObjectInBookmarksArrayAtIndex(const QVariant &object, int index);
    void removeObjectFromBookmarksArrayAtIndex(int index);
    void replaceObjectInBookmarksArrayAtIndexWithObject(int index, const QVariant &object);
    void addToBookMark(const QVariant &object) { m_bookmarksArray.append(object); }
    // Removes every equal object, and nothing from an empty list.
    void removeFromBookMark(const QVariant &object) { m_bookmarksArray.removeAll(object); }

private:
    QVariantList m_bookmarksArray;
};

} // namespace tarvelo::store
