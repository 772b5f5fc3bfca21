#pragma once

#include <QWidget>

namespace sargan {

class Strings;

/// The small panel that says that something long is going on.
class LoadingWindow : public QWidget {
    Q_OBJECT

public:
    explicit LoadingWindow(const Strings& strings);

    /// In front and painted, although the work that follows keeps the event loop waiting.
    void showNow();
};

}  // namespace sargan
