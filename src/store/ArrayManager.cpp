#include "store/ArrayManager.h"

namespace tarvelo::store {

QVariant ArrayManager::objectInBookmarksArrayAtIndex(int index) const
{
    return m_bookmarksArray.value(index);
}

void ArrayManager::insertObjectInBookmarksArrayAtIndex(const QVariant &object, int index)
{
    if (index >= 0 && index <= countOfBookmarksArray())
        m_bookmarksArray.insert(index, object);
}

void ArrayManager::removeObjectFromBookmarksArrayAtIndex(int index)
{
    if (index >= 0 && index < countOfBookmarksArray())
        m_bookmarksArray.removeAt(index);
}

void ArrayManager::replaceObjectInBookmarksArrayAtIndexWithObject(int index, const QVariant &object)
{
    if (index >= 0 && index < countOfBookmarksArray())
        m_bookmarksArray.replace(index, object);
}

} // namespace tarvelo::store
