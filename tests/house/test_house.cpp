#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString source = QStringLiteral(SARGAN_SOURCE_DIR);

QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QString& folder, const QStringList& patterns) {
    QStringList files;
    QDirIterator walk(source + u'/' + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) files << walk.next();
    files.sort();
    return files;
}

QStringList codeFiles() {
    return filesBelow(u"src"_s, {u"*.h"_s, u"*.cpp"_s, u"*.def"_s});
}

/// folder -> folders it may include, as src/arrows.txt says.
QMap<QString, QSet<QString>> arrows() {
    QMap<QString, QSet<QString>> allowed;
    for (const QString& line : contentOf(source + u"/src/arrows.txt"_s).split(u'\n')) {
        if (line.startsWith(u'#') || !line.contains(u':')) continue;
        const QString folder = line.section(u':', 0, 0).trimmed();
        const QStringList uses = line.section(u':', 1).split(u' ', Qt::SkipEmptyParts);
        allowed[folder] = QSet<QString>(uses.begin(), uses.end()) << folder;
    }
    return allowed;
}

bool mayUseWidgets(const QString& inSource) {
    return inSource.contains(u"/ui/"_s) || inSource.startsWith(u"app/"_s);
}

struct Include {
    QString from;  ///< file, relative to src/
    QString what;  ///< as written, without the brackets
};

QList<Include> includes() {
    static const QRegularExpression line(u"^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"_s,
                                         QRegularExpression::MultilineOption);
    QList<Include> found;
    for (const QString& path : codeFiles())
        for (auto match = line.globalMatch(contentOf(path)); match.hasNext();)
            found << Include{path.mid(source.size() + 5), match.next().captured(1)};
    return found;
}

/// Every class of QtWidgets, from the names of its headers.
QSet<QString> widgetHeaders() {
    QSet<QString> names{u"QtWidgets"_s};
    for (const QString& folder : {u"/usr/include/x86_64-linux-gnu/qt6/QtWidgets"_s,
                                  u"/usr/include/aarch64-linux-gnu/qt6/QtWidgets"_s})
        for (const QString& name : QDir(folder).entryList({u"Q*"_s}, QDir::Files)) names << name;
    return names;
}

}  // namespace

/// The rules that keep the house livable, held by reading the tree itself.
class TestHouse : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void includesFollowTheArrows() {
        const auto allowed = arrows();
        QVERIFY(allowed.size() >= 10);
        QStringList wrong;
        int seen = 0;
        for (const auto& [from, what] : includes()) {
            const QString folder = from.section(u'/', 0, 0);
            const QString used = what.section(u'/', 0, 0);
            if (!what.contains(u'/') || !allowed.contains(used)) continue;
            ++seen;
            if (!allowed.value(folder).contains(used)) wrong << from + u" includes "_s + what;
            const bool usesUi = what.contains(u"/ui/"_s) || used == u"app"_s;
            if (usesUi && !mayUseWidgets(from)) wrong << from + u" includes a window: "_s + what;
        }
        QVERIFY(seen > 50);
        QCOMPARE(wrong, QStringList());
    }

    void onlyWindowsIncludeWidgets() {
        const QSet<QString> widgets = widgetHeaders();
        QVERIFY2(widgets.contains(u"QWidget"_s), "the headers of QtWidgets were not found");
        QStringList wrong;
        for (const auto& [from, what] : includes()) {
            const QString header = what.section(u'/', -1);
            if ((what.startsWith(u"QtWidgets"_s) || widgets.contains(header)) && !mayUseWidgets(from))
                wrong << from + u" includes "_s + what;
        }
        QCOMPARE(wrong, QStringList());
    }

    void theCoreProgramLinksNoWidgets() {
        QProcess readelf;
        readelf.start(u"readelf"_s, {u"-d"_s, QStringLiteral(SARGAN_CORE_PROGRAM)});
        QVERIFY(readelf.waitForFinished());
        const QString dynamic = QString::fromUtf8(readelf.readAllStandardOutput());
        QVERIFY(dynamic.contains(u"libQt6Core"_s));
        QVERIFY2(!dynamic.contains(u"libQt6Widgets"_s), qPrintable(dynamic));
    }

    void theFormatPageIsTheOneThatTheProgramPrints() {
        QProcess core;
        core.start(QStringLiteral(SARGAN_CORE_PROGRAM), {u"file-format"_s});
        QVERIFY(core.waitForFinished());
        QCOMPARE(contentOf(source + u"/docs/file-format.md"_s), QString::fromUtf8(core.readAllStandardOutput()));
    }

    void filesAreWrittenThroughTheSafeFileModule() {
        // Whoever writes a file elsewhere loses the guarantees that saving gives.
        static const QRegularExpression writes(
            u"\\bQSaveFile\\b|\\bQTemporaryFile\\b|QIODevice(Base)?::(WriteOnly|ReadWrite|Append|Truncate)|\\bofstream\\b|\\bfopen\\s*\\("_s);
        QStringList wrong;
        for (const QString& path : codeFiles()) {
            const QString inSource = path.mid(source.size() + 5);
            if (inSource.startsWith(u"platform/files/"_s)) continue;
            const auto match = writes.match(contentOf(path));
            if (match.hasMatch()) wrong << inSource + u": "_s + match.captured(0);
        }
        QCOMPARE(wrong, QStringList());
    }

    void filesStayShort() {
        QStringList wrong;
        for (const QString& path : codeFiles()) {
            const qsizetype lines = contentOf(path).count(u'\n');
            if (lines > 600)
                wrong << QStringLiteral("%1: %2 lines").arg(path.mid(source.size() + 5)).arg(lines);
        }
        QCOMPARE(wrong, QStringList());
    }

    void nothingIsLeftForLater() {
        static const QRegularExpression marks(u"\\b(TODO|FIXME|XXX|HACK)\\b"_s);
        QStringList wrong;
        for (const QString& path : codeFiles())
            if (contentOf(path).contains(marks)) wrong << path;
        QCOMPARE(wrong, QStringList());
    }
};

QTEST_GUILESS_MAIN(TestHouse)
#include "test_house.moc"
