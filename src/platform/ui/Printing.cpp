#include "platform/ui/Printing.h"

#include <QAction>
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "platform/document/Sentences.h"
#include "platform/files/SafeFile.h"
#include "platform/ui/Icons.h"
#include "platform/ui/PrintPreview.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString paperKey = QStringLiteral("print paper");

}  // namespace

bool choosePaper(QPrinter& printer, QWidget* parent) {
    return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

bool choosePage(QPrinter& printer, QWidget* parent) {
    return QPageSetupDialog(&printer, parent).exec() == QDialog::Accepted;
}

QPageSize paperOf(const UserDefaults& defaults) {
    const QString key = defaults.text(paperKey);
    for (int id = 0; id <= QPageSize::LastPageSize; ++id)
        if (!key.isEmpty() && QPageSize::key(QPageSize::PageSizeId(id)) == key)
            return QPageSize(QPageSize::PageSizeId(id));
    return QPageSize(QPageSize::A4);
}

void printOnPaper(const Printable& printable, Desk& desk, QWidget* parent, const PaperChooser& choose) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(printable.title());
    printer.setPageLayout(pageLayoutOf(printable, paperOf(desk.defaults)));
    if (!choose(printer, parent)) return;
    // The margins are the documents' own; the paper is what was chosen.
    printer.setPageLayout(pageLayoutOf(printable, printer.pageLayout().pageSize()));
    if (!print(printable, printer)) desk.prompt.alert(desk.strings.ui("The printer does not print."));
}

void runPageLayout(Desk& desk, QWidget* parent, const PaperChooser& choose) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(paperOf(desk.defaults));
    if (!choose(printer, parent)) return;
    desk.defaults.store(paperKey, printer.pageLayout().pageSize().key());
}

PrintActions::PrintActions(const char* name, const QString& text, Desk& desk, QWidget* window, Source source)
    : QObject(window), _desk(desk), _window(window), _source(std::move(source)) {
    const Strings& strings = desk.strings;
    _print = make(name, "imprimante", text, &PrintActions::print);
    _print->setShortcut(QKeySequence::Print);
    _preview = make("printPreview", nullptr, strings.ui("Print Preview…"), &PrintActions::preview);
    _pdf = make("savePdf", nullptr, strings.ui("Save as PDF…"), &PrintActions::savePdf);
    _pageLayout = make("runPageLayout", nullptr, strings.ui("Page Setup…"), &PrintActions::pageLayout);
    file = [this](const QString& suggested) {
        return askWhereToWrite(_window, _desk.strings.ui("Save as PDF"), suggested, {u"PDF (*.pdf)"_s});
    };
}

QAction* PrintActions::make(const char* name, const char* icon, const QString& text,
                            void (PrintActions::*run)()) {
    auto* action = new QAction(icon ? iconNamed(icon) : QIcon(), text, this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void PrintActions::print() {
    if (const auto printable = _source()) printOnPaper(*printable, _desk, _window, paper);
}

void PrintActions::preview() {
    auto printable = _source();
    if (!printable) return;
    auto* preview = new PrintPreview(std::move(printable), *this, _desk, _window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->open();
}

void PrintActions::savePdf() {
    const auto printable = _source();
    if (!printable) return;
    const QString path = file(printable->title() + u".pdf"_s);
    if (path.isEmpty()) return;
    writeFile(path, _desk, [&] { return pdfOf(*printable, paperOf(_desk.defaults)); });
}

void PrintActions::pageLayout() {
    runPageLayout(_desk, _window, page);
}

bool writeFile(const QString& path, Desk& desk, const std::function<QByteArray()>& make) {
    try {
        saveFile(path, make());
        return true;
    } catch (const std::invalid_argument&) {
        desk.prompt.alert(desk.strings.ui("This program cannot write a file with such an ending."));
    } catch (const std::exception& error) {
        desk.prompt.alert(sentenceIn(desk.strings, error));
    }
    return false;
}

QString askWhereToWrite(QWidget* parent, const QString& title, const QString& suggested,
                        const QStringList& filters) {
    QFileDialog dialog(parent, title, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    const auto takeSuffix = [&](const QString& filter) {
        dialog.setDefaultSuffix(filter.section(u"*."_s, 1).chopped(1));
    };
    takeSuffix(filters.first());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    dialog.selectFile(QString(suggested).replace(u'/', u'-'));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace sargan
