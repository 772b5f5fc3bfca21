#pragma once

#include <QLineEdit>

#include "platform/archive/Moment.h"

namespace sargan {

/// A day or a time of day in one line. What is typed counts as soon as it can be read; when the field is
/// left, it shows the value again. The up and down keys step by a day or a minute. An empty field is absent.
class MomentField : public QLineEdit {
    Q_OBJECT

public:
    enum class Part { Day, TimeOfDay };

    MomentField(Part part, QWidget* parent);

    const Moment& moment() const { return _moment; }
    void setMoment(const Moment& moment);
    /// "07/06/2016", "14:30", or "--/--/----" and "--:--" when absent.
    QString shown(const Moment& moment) const;

    /// Days are read as day, month, year with any separators or none ("7/6/16", "07062016") and as
    /// 2016-06-07; times as "14:30", "14h30", "1430" or "9". Invalid when the text is none of these.
    static QDate readDay(const QString& text);
    static QTime readTime(const QString& text);

Q_SIGNALS:
    /// The person set another value; the other part of the old one (time or day) is kept.
    void momentEdited(const sargan::Moment& moment);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void typed(const QString& text);
    void assign(const Moment& moment);
    void step(int count);
    void showCalendar();
    std::optional<Moment> withDay(const QDate& day) const;
    std::optional<Moment> withTime(const QTime& time) const;

    Part _part;
    Moment _moment;
};

}  // namespace sargan
