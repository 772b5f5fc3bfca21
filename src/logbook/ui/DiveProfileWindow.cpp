#include "logbook/ui/DiveProfileWindow.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>

#include "logbook/ui/DepthPreview.h"
#include "platform/ui/Mnemonics.h"
#include "profile/ProfileData.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"window editProfilWindow"_s;

}  // namespace

DiveProfileWindow::DiveProfileWindow(Carnet& carnet)
    : _carnet(carnet), _profile(carnet), _preview(new DepthPreview(this)), _sample(new QLabel(this)) {
    setObjectName(u"editProfilWindow"_s);
    _sample->setObjectName(u"sampleField"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    _binders.resize(std::size_t(_profile.form().count()));
    auto* column = new QVBoxLayout(this);
    column->addWidget(_preview, 1);
    column->addWidget(_sample);
    column->addWidget(makeLists(), 2);
    column->addWidget(makeFoot());
    allotMnemonics(this);
    connect(&_profile.form(), &Form::changed, this, &DiveProfileWindow::refresh);
    connect(&carnet, &Document::selectionChanged, this, &DiveProfileWindow::followDive);
    connect(&carnet.diveForm(), &DiveForm::diveShown, this, &DiveProfileWindow::followDive);
    connect(&carnet, &Document::fileChanged, this, &DiveProfileWindow::followDive);
    carnet.settleProfile = [this] {
        if (isVisible()) settle();
    };
    for (const QKeySequence& key : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    const QJsonObject place = carnet.desk().defaults.value(placeKey).toObject();
    const QSize size =
        place.isEmpty() ? QSize(860, 600) : QSize(place[u"width"_s].toInt(), place[u"height"_s].toInt());
    resize(size.expandedTo(QSize(320, 240)).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

DiveProfileWindow::~DiveProfileWindow() {
    _carnet.settleProfile = {};
    for (const auto& binder : _binders)
        if (binder) binder->widget()->disconnect(binder.get());
}

QWidget* DiveProfileWindow::bind(ControlName control) {
    Form& form = _profile.form();
    auto& binder = _binders[std::size_t(form[control])];
    binder = makeBinder(form, form[control], _carnet.desk(), _choosers, this);
    return binder->widget();
}

QWidget* DiveProfileWindow::makeLists() {
    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setRowStretch(1, 1);
    for (int i = 0; const ProfileList& list : profileLists()) addList(grid, i++, list);
    // In a window too narrow for seven lists they move sideways.
    auto* scroller = new QScrollArea(this);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidget(lists);
    return scroller;
}

void DiveProfileWindow::addList(QGridLayout* grid, int column, const ProfileList& list) {
    auto* title = new QLabel(_carnet.strings().text(list.title), this);
    auto* text = qobject_cast<QPlainTextEdit*>(bind(list.text));
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setMinimumWidth(60);
    text->setAccessibleName(title->text());
    title->setBuddy(text);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    title->setToolTip(title->text());
    auto* replace = qobject_cast<QCheckBox*>(bind(list.replace));
    replace->setText(_carnet.strings().ui("Replace"));
    replace->setAccessibleName(_carnet.strings().ui("Replace") + u' ' + title->text());
    grid->addWidget(title, 0, column);
    grid->addWidget(text, 1, column);
    grid->addWidget(bind(list.count), 2, column);
    grid->addWidget(replace, 3, column);
    grid->setColumnStretch(column, 1);
    _texts.append(text);
    connect(text, &QPlainTextEdit::cursorPositionChanged, this, &DiveProfileWindow::showSample);
    connect(text->verticalScrollBar(), &QScrollBar::valueChanged, this, &DiveProfileWindow::scrollTogether);
}

QWidget* DiveProfileWindow::makeFoot() {
    auto* foot = new QWidget(this);
    auto* line = new QHBoxLayout(foot);
    line->setContentsMargins(0, 0, 0, 0);
    auto* all = qobject_cast<QCheckBox*>(bind(profilecontrol::eraseAll));
    all->setText(_carnet.strings().ui("Replace all seven"));
    _import = new QPushButton(_carnet.strings().ui("Put into the dive"), foot);
    _import->setObjectName(u"importProfil"_s);
    auto* close = new QPushButton(_carnet.strings().ui("Close"), foot);
    line->addWidget(all);
    line->addStretch(1);
    line->addWidget(close);
    line->addWidget(_import);
    connect(_import, &QPushButton::clicked, this, &DiveProfileWindow::importProfil);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    return foot;
}

void DiveProfileWindow::profilInfo() {
    isVisible() ? followDive() : showDive();
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    _texts.first()->setFocus();
}

void DiveProfileWindow::refresh(int control) {
    _binders[std::size_t(control)]->refresh();
    const ProfileList& depth = profileLists().front();
    if (control == _profile.form()[depth.text] || control == _profile.form()[depth.replace]) showPreview();
    _import->setEnabled(_profile.hasPending() && !_carnet.isReadOnly());
}

void DiveProfileWindow::followDive() {
    if (!isVisible()) return;
    _profile.followDive();
    showState();
}

void DiveProfileWindow::showDive() {
    _profile.updateProfilInfo();
    showState();
}

void DiveProfileWindow::showState() {
    setWindowTitle(_profile.title());
    const bool isThere = _carnet.selectedRow() >= 0;
    for (const auto& binder : _binders) binder->setLocked(_carnet.isReadOnly() || !isThere);
    _import->setEnabled(_profile.hasPending() && !_carnet.isReadOnly());
    showPreview();
}

void DiveProfileWindow::showPreview() {
    _preview->setDepths(_profile.depthsShown());
    showSample();
}

/// Which sample the person is at, its time and depth.
void DiveProfileWindow::showSample() {
    const auto* text = qobject_cast<const QPlainTextEdit*>(focusWidget());
    const NumberArray& depths = _preview->depths();
    const qsizetype at = text ? text->textCursor().blockNumber() : 0;
    const bool isThere = profile::isPresent(depths) && at < depths.size();
    _preview->setMarked(isThere ? at : -1);
    if (!isThere) return _sample->setText(_carnet.strings().text({"Carnet", "No datas"}));
    const Message<int, QString, double> words{"Interface", "Sample %d: %@, %.1f m", "Sample %d: %@, %.1f m"};
    const int code = _carnet.form().tag(divecontrol::samplingRate);
    const int seconds = int(double(at) * profile::sampleInterval(code).value_or(0));
    const QString time = u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
    _sample->setText(_carnet.strings().text(words, int(at), time, depths.at(at)));
}

/// Sample i stands on line i of every list, so they move together.
void DiveProfileWindow::scrollTogether(int line) {
    if (_isScrolling) return;
    const QScopedValueRollback scrolling(_isScrolling, true);
    for (const QPlainTextEdit* text : std::as_const(_texts)) text->verticalScrollBar()->setValue(line);
}

void DiveProfileWindow::importProfil() {
    _profile.importProfil();
    showDive();
}

/// What was typed is never lost by going elsewhere: the person says whether it belongs into the dive.
void DiveProfileWindow::settle() {
    if (!_profile.hasPending() || _carnet.isReadOnly()) return;
    const Strings& words = _carnet.strings();
    if (_carnet.desk().prompt.ask(words.ui("Put the lists that are marked into the dive?"),
                                  {words.text({"Main", "Yes"}), words.text({"Main", "No"})}) == 0)
        importProfil();
}

void DiveProfileWindow::closeEvent(QCloseEvent* event) {
    settle();
    event->accept();
}

void DiveProfileWindow::hideEvent(QHideEvent* event) {
    _carnet.desk().defaults.store(placeKey, QJsonObject{{u"width"_s, width()}, {u"height"_s, height()}});
    QWidget::hideEvent(event);
}

}  // namespace sargan
