#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

#include "platform/desk/DeskTests.h"
#include "platform/desk/PickLists.h"
#include "platform/desk/UserDefaults.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString key = u"sites"_s;

struct Lists {
    UserDefaults defaults;
    PickLists lists{defaults};
    QSignalSpy changes{&lists, &PickLists::changed};

    explicit Lists(const QStringList& stored = {}) {
        if (!stored.isEmpty()) defaults.store(key, QJsonArray::fromStringList(stored));
        lists.load(key);
        changes.clear();
    }
};

class PickListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aListThatWasNeverLoadedIsEmpty() {
        Lists all({u"Reef"_s});
        QCOMPARE(all.lists.list(u"lieux"_s), QStringList());
        QCOMPARE(all.lists.list(key), QStringList{u"Reef"_s});
    }

    void loadingReplacesWhatIsInMemory() {
        Lists all({u"Reef"_s});
        all.lists.append(key, u"Wall"_s);
        all.lists.load(key);
        QCOMPARE(all.lists.list(key), QStringList{u"Reef"_s});
        QCOMPARE(all.changes.size(), 2);
    }

    void appendingTakesEmptyAndDoubleEntriesAndStoresNothing() {
        Lists all({u"Reef"_s});
        all.lists.append(key, u"Reef"_s);
        all.lists.append(key, QString());
        QCOMPARE(all.lists.list(key), (QStringList{u"Reef"_s, u"Reef"_s, QString()}));
        QCOMPARE(all.defaults.list(key), QStringList{u"Reef"_s});
    }

    void sortingPutsCapitalsFirstAndAccentsLast() {
        Lists all({u"alpha"_s, u"éponge"_s, u"Zeta"_s, u""_s, u"zèbre"_s});
        all.lists.sortAndStore(key);
        const QStringList sorted{u""_s, u"Zeta"_s, u"alpha"_s, u"zèbre"_s, u"éponge"_s};
        QCOMPARE(all.lists.list(key), sorted);
        QCOMPARE(all.defaults.list(key), sorted);
    }

    void removingIgnoresPlacesThatThereAreNot() {
        Lists all({u"a"_s, u"b"_s, u"c"_s});
        all.lists.removeAt(key, {7, -1});
        QCOMPARE(all.changes.size(), 0);
        all.lists.removeAt(key, {2, 0, 0});
        QCOMPARE(all.lists.list(key), QStringList{u"b"_s});
        QCOMPARE(all.changes.size(), 1);
        QCOMPARE(all.changes.first().first().toString(), key);
    }
};

}  // namespace

int runPickListsTest(int argc, char** argv) {
    PickListsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PickListsTest.moc"
