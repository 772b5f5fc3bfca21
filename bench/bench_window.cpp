// From the start of main to the first painted window: the program against a bare Qt window with a table.
//   bench_window PROGRAM [FILE…]     (needs a display; under Xvfb: xvfb-run bench_window …)
//   bench_window --bare              is the bare window itself

#include <QtWidgets>
#include <chrono>
#include <cstdio>

namespace {

const auto started = std::chrono::steady_clock::now();

/// Says when its first paint is over, and quits.
class TimedTable : public QTableView {
public:
    using QTableView::QTableView;

protected:
    void paintEvent(QPaintEvent* event) override {
        QTableView::paintEvent(event);
        QTimer::singleShot(0, [] {
            const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - started;
            std::fprintf(stderr, "first paint: %.1f ms\n", took.count());
            QCoreApplication::quit();
        });
    }
};

int runBare(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    QStandardItemModel model(50, 10);
    TimedTable table;
    table.setModel(&model);
    window.setCentralWidget(&table);
    window.resize(1000, 600);
    window.show();
    return QApplication::exec();
}

/// The fastest of some starts, in milliseconds as the started program tells them.
double best(const QString& program, const QStringList& arguments) {
    double fastest = 1e9;
    for (int run = 0; run < 10; ++run) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SARGAN_TIME_TO_PAINT"), QStringLiteral("1"));
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        process.waitForFinished(60000);
        static const QRegularExpression time(QStringLiteral("first paint: ([0-9.]+) ms"));
        const auto match = time.match(QString::fromUtf8(process.readAllStandardError()));
        if (match.hasMatch()) fastest = std::min(fastest, match.captured(1).toDouble());
    }
    return fastest;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], "--bare") == 0) return runBare(argc, argv);
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString program = arguments.value(1);
    QTemporaryDir settings;
    const QStringList common{QStringLiteral("--settings"), settings.path()};
    const double bare = best(arguments[0], {QStringLiteral("--bare")});
    const double empty = best(program, common);
    std::printf("%-32s %8.1f ms\n%-32s %8.1f ms   %5.2f x bare\n", "bare window with a table", bare,
                "empty logbook", empty, empty / bare);
    for (const QString& file : arguments.mid(2))
        std::printf("%-32s %8.1f ms\n", qUtf8Printable(QFileInfo(file).fileName()),
                    best(program, QStringList(common) << file));
    return 0;
}
