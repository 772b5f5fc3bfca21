#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace sargan {

/// Tells when a window has been painted for the first time, with the time since the program started.
class FirstPaint : public QObject {
    Q_OBJECT

public:
    /// To be called first thing in main.
    static void startClock();
    static qint64 elapsed();

    explicit FirstPaint(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void painted(qint64 milliseconds);
};

}  // namespace sargan
