#pragma once

#include <QJsonObject>
#include <QObject>
#include <QSize>

class QMainWindow;

namespace sargan {

class FormView;

/// The size of a window with panes: for each pane the one that the person last gave the window there, at
/// first what the pane's content takes. The window's upper left corner stays where it is.
class PaneSizes : public QObject {
    Q_OBJECT

public:
    /// `least`: whatever a pane takes, the window is made no smaller.
    PaneSizes(QMainWindow& window, FormView& view, QSize least);

    /// From the settings, and for them.
    void restore(const QJsonObject& place);
    QJsonObject place();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isFree() const;
    void turn(int pane);
    void keep();
    void fitLater();
    void fit();
    QSize fitting() const;

    QMainWindow& _window;
    FormView& _view;
    QSize _least;
    QList<QSize> _sizes;  ///< by pane; invalid while the person has not chosen one
    int _pane;
    QSize _fitted;  ///< what the window was given last
    QSize _before;  ///< what it had when the pane was turned
};

}  // namespace sargan
