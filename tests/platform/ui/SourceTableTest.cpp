#include "platform/ui/SourceTable.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include "UiTests.h"
#include "platform/form/SystemColors.h"
#include "platform/ui/CellDelegate.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A list of two columns that tests change under the model.
struct FakeSource : TableSource {
    QList<QList<TableCell>> rows;
    QStringList columns{u"a"_s, u"b"_s};
    mutable int made = 0;

    QList<TableColumn> tableColumns() const override {
        QList<TableColumn> list;
        for (const QString& identifier : columns)
            list.append({identifier, {"Test", "title", "title"}, 5, Qt::AlignRight});
        return list;
    }
    qsizetype tableRows() const override { return rows.size(); }
    TableCell tableCell(qsizetype row, int column) const override {
        ++made;
        return rows[row][column];
    }
    void clickTableColumn(const QString&) override {}
};

TableCell cell(const QColor& color, const QColor& background) {
    return {u"x"_s, color, background};
}

}  // namespace

class SourceTableTest : public QObject {
    Q_OBJECT

    const Strings strings;

private Q_SLOTS:
    void aCellIsMadeWhenItIsLookedAt() {
        FakeSource source;
        source.rows = {{{u"1"_s}, {u"2"_s}}, {{u"3"_s}, {u"4"_s}}};
        const SourceTable table(source, strings, nullptr);
        QCOMPARE(source.made, 0);
        QCOMPARE(table.index(1, 0).data().toString(), u"3"_s);
        for (const int role : {int(Qt::ForegroundRole), int(Qt::BackgroundRole), int(Qt::FontRole),
                               int(SourceTable::GaugeRole)})
            QVERIFY(!table.index(1, 0).data(role).isValid());
        QCOMPARE(source.made, 1);
        QCOMPARE(table.index(1, 0).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
        QCOMPARE(table.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"title"_s);
        QCOMPARE(table.columnNamed(u"b"_s), 1);
        QCOMPARE(table.columnNamed(u"c"_s), -1);
    }

    void blackFollowsThePaletteAndTheBackground_data() {
        QTest::addColumn<TableCell>("shown");
        QTest::addColumn<QColor>("color");
        const QColor none;
        QTest::newRow("nothing set") << cell(none, none) << none;
        QTest::newRow("black") << cell(systemcolor::black, none) << none;
        QTest::newRow("a colour") << cell(systemcolor::red, none) << systemcolor::red;
        QTest::newRow("black on dark") << cell(systemcolor::black, QColor(0, 0, 77)) << systemcolor::white;
        QTest::newRow("none on light") << cell(none, QColor(185, 255, 172)) << systemcolor::black;
        QTest::newRow("none on a breath of colour") << cell(none, QColor(0, 0, 77, 40)) << none;
        QTest::newRow("a colour on dark")
            << cell(systemcolor::yellow, systemcolor::black) << systemcolor::yellow;
    }
    void blackFollowsThePaletteAndTheBackground() {
        QFETCH(TableCell, shown);
        FakeSource source;
        source.columns = {u"a"_s};
        source.rows = {{shown}};
        const SourceTable table(source, strings, nullptr);
        QTEST(table.index(0, 0).data(Qt::ForegroundRole).value<QColor>(), "color");
    }

    void rowsThatComeAndGoAreTold() {
        FakeSource source;
        SourceTable table(source, strings, nullptr);
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (const int count : {3, 5, 5, 1, 0, 2}) {
            source.rows = QList<QList<TableCell>>(count, {{u"%1"_s.arg(count)}, {}});
            table.followRows();
            QCOMPARE(table.rowCount(), count);
            if (count > 0) QCOMPARE(table.index(0, 0).data().toString(), QString::number(count));
        }
        // The list is shorter already, and the view has not been told yet.
        source.rows = {{{u"1"_s}, {}}};
        QVERIFY(!table.index(1, 0).data().isValid());
        source.columns = {u"b"_s};
        table.followColumns();
        QCOMPARE(table.columnCount(), 1);
        QCOMPARE(table.rowCount(), 1);
    }

    void aGaugeIsABarBehindTheText_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("share");
        QTest::newRow("empty") << 0.0 << 0.0;
        QTest::newRow("half") << 0.5 << 0.5;
        QTest::newRow("full") << 1.0 << 1.0;
        QTest::newRow("overfull") << 7.0 << 1.0;
        QTest::newRow("below nothing") << -1.0 << 0.0;
        QTest::newRow("no number") << qQNaN() << 0.0;
    }
    void aGaugeIsABarBehindTheText() {
        QFETCH(double, value);
        QFETCH(double, share);
        FakeSource source;
        source.columns = {u"a"_s};
        source.rows = {{TableCell{.text = {}, .gauge = value}}};
        const SourceTable table(source, strings, nullptr);
        QImage image(206, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        CellDelegate().paint(&painter, option, table.index(0, 0));
        painter.end();
        // The bar is 200 wide; what is filled is darker than what is left.
        const QColor bar = option.palette.color(QPalette::Highlight);
        int filled = 0;
        for (int x = 3; x < 203; ++x) {
            const int red = 255 - QColor(image.pixel(x, 15)).red();
            filled += red * 10 > 3 * (255 - bar.red());
        }
        QVERIFY2(std::abs(filled - 200 * share) <= 2, qPrintable(QString::number(filled)));
    }
};

int runSourceTableTest(int argc, char** argv) {
    SourceTableTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SourceTableTest.moc"
