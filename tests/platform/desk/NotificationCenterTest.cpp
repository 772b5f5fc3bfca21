#include <QTest>

#include "platform/desk/DeskTests.h"
#include "platform/desk/NotificationCenter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

using Observation = NotificationCenter::Observation;

class NotificationCenterTest : public QObject {
    Q_OBJECT

    QStringList _heard;

    auto hear(const QString& what) {
        return [this, what](const void*) { _heard << what; };
    }

private Q_SLOTS:
    void init() { _heard.clear(); }

    void deliversInTheOrderOfRegistration() {
        NotificationCenter center;
        const Observation first = center.observe(u"deco"_s, hear(u"first"_s));
        const Observation other = center.observe(u"profile"_s, hear(u"other"_s));
        const Observation second = center.observe(u"deco"_s, hear(u"second"_s));
        center.post(u"deco"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"first"_s, u"second"_s}));
        center.post(u"Deco"_s, nullptr);
        QCOMPARE(_heard.size(), 2);
    }

    void handsTheSenderOver() {
        NotificationCenter center;
        const void* heard = nullptr;
        const Observation observation = center.observe(u"x"_s, [&](const void* sender) { heard = sender; });
        center.post(u"x"_s, this);
        QCOMPARE(heard, static_cast<const void*>(this));
    }

    void anObservationEndsWithItsObject() {
        NotificationCenter center;
        {
            const Observation gone = center.observe(u"x"_s, hear(u"gone"_s));
            center.post(u"x"_s, nullptr);
        }
        center.post(u"x"_s, nullptr);
        Observation replaced = center.observe(u"x"_s, hear(u"replaced"_s));
        replaced = Observation();
        center.post(u"x"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"gone"_s}));
    }

    void whatEndsWhilePostingIsNotHeardAnyMore() {
        NotificationCenter center;
        Observation second;
        const Observation first = center.observe(u"x"_s, [&](const void*) {
            _heard << u"first"_s;
            second = Observation();
        });
        second = center.observe(u"x"_s, hear(u"second"_s));
        center.post(u"x"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"first"_s}));
    }

    void aReceptorMayEndItself() {
        NotificationCenter center;
        Observation self;
        QString text = u"still here"_s;
        self = center.observe(u"x"_s, [&, text](const void*) {
            self = Observation();
            const Observation another = center.observe(u"y"_s, hear(u"y"_s));
            _heard << text;
        });
        center.post(u"x"_s, nullptr);
        center.post(u"x"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"still here"_s}));
    }

    void whatBeginsWhilePostingHearsTheNextPost() {
        NotificationCenter center;
        std::vector<Observation> added;
        const Observation first = center.observe(u"x"_s, [&](const void*) {
            if (added.empty()) added.push_back(center.observe(u"x"_s, hear(u"added"_s)));
        });
        center.post(u"x"_s, nullptr);
        QCOMPARE(_heard, QStringList());
        center.post(u"x"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"added"_s}));
    }

    void aPostWithinAPostIsDeliveredAtOnce() {
        NotificationCenter center;
        const Observation inner = center.observe(u"inner"_s, hear(u"inner"_s));
        const Observation outer = center.observe(u"outer"_s, [&](const void*) {
            center.post(u"inner"_s, nullptr);
            _heard << u"outer"_s;
        });
        center.post(u"outer"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"inner"_s, u"outer"_s}));
    }

    void everyPostIsToldBeforeItsReceptors() {
        NotificationCenter center;
        center.onPost = [this](const QString& name) { _heard << u"post "_s + name; };
        const Observation observation = center.observe(u"x"_s, hear(u"x"_s));
        center.post(u"x"_s, nullptr);
        center.post(u"nobody"_s, nullptr);
        QCOMPARE(_heard, QStringList({u"post x"_s, u"x"_s, u"post nobody"_s}));
    }
};

int runNotificationCenterTest(int argc, char** argv) {
    NotificationCenterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "NotificationCenterTest.moc"
