#pragma once

#include "platform/ui/ControlBinder.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace sargan {

class LineBinder : public ControlBinder {
public:
    LineBinder(Form& form, int control, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }
    void setCharacters(int count) override;
    void takeFocus() override;

protected:
    void show(const ControlState& state) override;
    void applyLock(bool locked, bool enabled) override;
    QLineEdit* edit() const { return _edit; }

private:
    QLineEdit* _edit;
};

/// Numbers are texts, as typed: "12,5", "12.5", "-". They stand at the right.
class NumberBinder : public LineBinder {
public:
    NumberBinder(Form& form, int control, QWidget* parent);
};

class AreaBinder : public ControlBinder {
public:
    AreaBinder(Form& form, int control, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }

protected:
    void show(const ControlState& state) override;
    void applyLock(bool locked, bool enabled) override;

private:
    QPlainTextEdit* _edit;
};

/// A text with choices. A pick list is read anew whenever the person comes to the control, since it grows.
class ComboBinder : public ControlBinder {
public:
    ComboBinder(Form& form, int control, const PickLists& pickLists, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }
    void setCharacters(int count) override;
    void takeFocus() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void show(const ControlState& state) override;
    void applyLock(bool locked, bool enabled) override;

private:
    QStringList choices() const;
    void offerChoices();
    void matchLetters(bool exactly);
    void take(const QString& text);

    const PickLists& _pickLists;
    QComboBox* _combo;
};

class CaptionBinder : public ControlBinder {
public:
    CaptionBinder(Form& form, int control, QWidget* parent);
    QWidget* widget() const override;

protected:
    void show(const ControlState& state) override;

private:
    QLabel* _label;
};

}  // namespace sargan
