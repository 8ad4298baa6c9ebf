#include "store/ArrayManager.h"

#include "support/TestCase.h"

using tarvelo::store::ArrayManager;

class ArrayManagerTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneIsEmpty()
    {
        const ArrayManager manager;

        QCOMPARE(manager.countOfBookmarksArray(), 0);
        QVERIFY(manager.bookmarksArray().isEmpty());
    }

    void settingTheArrayKeepsACopyOfItsOwn()
    {
        QVariantList given{1, 2};
        ArrayManager manager;

        manager.setBookmarksArray(given);
        given.append(3);

        QCOMPARE(manager.bookmarksArray(), QVariantList({1, 2}));
    }

    void objectsAreInsertedReplacedAndRemovedByIndex()
    {
        ArrayManager manager;
        manager.setBookmarksArray({1, 3});

        manager.insertObjectInBookmarksArrayAtIndex(2, 1);
        manager.insertObjectInBookmarksArrayAtIndex(4, 3);
        manager.replaceObjectInBookmarksArrayAtIndexWithObject(0, 9);
        manager.removeObjectFromBookmarksArrayAtIndex(2);

        QCOMPARE(manager.bookmarksArray(), QVariantList({9, 2, 4}));
        QCOMPARE(manager.objectInBookmarksArrayAtIndex(1), QVariant(2));
    }

    void anIndexOutOfRangeChangesNothing()
    {
        ArrayManager manager;
        manager.setBookmarksArray({1});

        for (const int index : {-1, 2}) {
            manager.insertObjectInBookmarksArrayAtIndex(7, index);
            manager.replaceObjectInBookmarksArrayAtIndexWithObject(index, 7);
            manager.removeObjectFromBookmarksArrayAtIndex(index);
            QVERIFY(!manager.objectInBookmarksArrayAtIndex(index).isValid());
        }

        QCOMPARE(manager.bookmarksArray(), QVariantList({1}));
    }

    void addedBookmarksComeLast()
    {
        ArrayManager manager;

        manager.addToBookMark(1);
        manager.addToBookMark(2);

        QCOMPARE(manager.bookmarksArray(), QVariantList({1, 2}));
    }

    void everyEqualBookmarkIsRemovedAndAnUnknownOneIsNot()
    {
        ArrayManager manager;
        manager.setBookmarksArray({1, 2, 1});

        manager.removeFromBookMark(1);
        manager.removeFromBookMark(5);

        QCOMPARE(manager.bookmarksArray(), QVariantList({2}));
    }

    void removingFromAnEmptyArrayLeavesItEmpty()
    {
        ArrayManager manager;

        manager.removeFromBookMark(1);

        QCOMPARE(manager.countOfBookmarksArray(), 0);
    }
};

QTEST_GUILESS_MAIN(ArrayManagerTest)
#include "ArrayManagerTest.moc"
