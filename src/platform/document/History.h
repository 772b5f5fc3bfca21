#pragma once

#include <QString>
#include <deque>
#include <utility>

namespace sargan {

/// Undo and redo over whole states. A state is cheap to keep (a list of pointers), so a step is a copy of
/// the state before it and needs no code of its own.
template <class State>
class History {
public:
    /// The oldest steps go first when there are more than this.
    static constexpr std::size_t maximum = 200;

    void push(QString name, State before) {
        _done.push_back({std::move(name), std::move(before)});
        if (_done.size() > maximum) _done.pop_front();
        _undone.clear();
    }
    bool canUndo() const { return !_done.empty(); }
    bool canRedo() const { return !_undone.empty(); }
    QString undoName() const { return _done.empty() ? QString() : _done.back().name; }
    QString redoName() const { return _undone.empty() ? QString() : _undone.back().name; }

    /// Exchanges `current` for the state before (after) the last step.
    void undo(State& current) { move(_done, _undone, current); }
    void redo(State& current) { move(_undone, _done, current); }
    void clear() {
        _done.clear();
        _undone.clear();
    }

private:
    struct Step {
        QString name;
        State state;
    };
    static void move(std::deque<Step>& from, std::deque<Step>& to, State& current) {
        if (from.empty()) return;
        Step step = std::move(from.back());
        from.pop_back();
        std::swap(step.state, current);
        to.push_back(std::move(step));
    }

    std::deque<Step> _done;
    std::deque<Step> _undone;
};

}  // namespace sargan
