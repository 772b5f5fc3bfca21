#pragma once

#include <QWidget>

namespace sargan {

class Strings;

/// What the person finds when launching has opened no document: a way to a new logbook or to a file.
class StartWindow : public QWidget {
    Q_OBJECT

public:
    explicit StartWindow(const Strings& strings);

Q_SIGNALS:
    void newLogbookWanted();
    void openWanted();
    void filesDropped(const QStringList& paths);
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace sargan
