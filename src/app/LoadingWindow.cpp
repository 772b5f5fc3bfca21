#include "app/LoadingWindow.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/text/Strings.h"

namespace sargan {

LoadingWindow::LoadingWindow(const Strings& strings)
    : QWidget(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint) {
    setObjectName(QStringLiteral("loadingWindow"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(24, 18, 24, 18);
    whole->addWidget(new QLabel(strings.ui("Loading…")));
    auto* indicator = new QProgressBar;
    indicator->setObjectName(QStringLiteral("loadingIndicator"));
    indicator->setRange(0, 0);
    indicator->setMinimumWidth(220);
    whole->addWidget(indicator);
}

void LoadingWindow::showNow() {
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    show();
    raise();
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace sargan
