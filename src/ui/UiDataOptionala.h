#pragma once

#include <QDate>
#include <QWidget>

class QCheckBox;
class QDateEdit;

// A date box that may hold no date: the tick beside it says whether it has one (the old date
// picker's check box). Shows dd.mm.yyyy with a calendar.
class UiDataOptionala : public QWidget {
    Q_OBJECT
public:
    explicit UiDataOptionala(QWidget* parinte = nullptr);

    // An invalid date when the box is empty.
    QDate data() const;
    // An invalid date empties the box and keeps the date it showed for when it is ticked again.
    void setData(const QDate& d);

    QCheckBox* bifa() const { return bifa_; }
    QDateEdit* editor() const { return editor_; }

Q_SIGNALS:
    // Whenever data() changes, by the clerk or by setData.
    void dataSchimbata(const QDate& d);

private:
    void arataStarea(bool bifat);
    void anunta();

    QCheckBox* bifa_;
    QDateEdit* editor_;
    QDate ultima_;
};
