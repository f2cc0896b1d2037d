#pragma once

#include "Logic/outcome.h"
#include "console/linksession.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <map>
#include <optional>

class QRadioButton;
class QWidget;

namespace Ui {
class MainWindow;
}

/// What the user sets in the instrument: the boxes and buttons of the panel, what they hold, what
/// was asked for and what the instrument has told. A value that the instrument does not hold is
/// marked until it is sent or put back, one that it did not tell until it does. Nothing here sends
/// anything, or makes a signal of the form do so.
class SettingBoxes : public QObject
{
    Q_OBJECT

public:
    using Setting = LinkSession::Setting;

    SettingBoxes(Ui::MainWindow *form, QObject *parent);

    /// Shows what the instrument has told, \a value in \a unit.
    void showFrequency(double value, const QString &unit);
    void showOffset(double decibels);
    void showAverageCount(int count);
    /// "dBm" and "DBM" are dBm, anything else is watts.
    void showPowerUnit(const QString &unit);
    /// "ON" is on and locks the power unit, anything else is off.
    void showRelativeState(const QString &state);
    /// What became of the question whose answer is shown next; anything but Ok is no answer.
    void noteOutcome(const QByteArray &command, const QString &line, Outcome outcome);
    /// Forgets what the instrument holds: there is none.
    void forget();

    /// Takes over the unit \a name and converts the shown value; an unknown name changes nothing.
    void changeFrequencyUnit(const QString &name);
    /// The frequency as it is sent, in the shown unit.
    QString frequency() const;

    /// Takes over what was typed for \a setting, which is about to be sent.
    void ask(Setting setting);
    /// Sends what is shown of \a setting over \a link.
    void send(Setting setting, SerialLogic &link) const;
    /// What was asked for last of \a setting and what the instrument holds instead, or that it does
    /// not tell, in words; empty when the two agree or when nothing was asked for.
    QString disagreement(Setting setting) const;
    /// Whether the instrument holds another value than the one shown.
    bool isUnsent(Setting setting) const;

    /// Escape in one of the number boxes: what the instrument holds. False elsewhere.
    bool putBack(const QObject *box);

    /// The name of \a setting, as the user reads it.
    static QString nameOf(Setting setting);

    /// Fills in what the language changed.
    void retranslate();

signals:
    /// The user chose what is chosen already, but was not confirmed.
    void wantedAgain(LinkSession::Setting setting);

private:
    struct Held
    {
        std::optional<double> value; ///< kHz, dB, a count, 1 for on or for dBm
        std::optional<double> asked;
        bool isUntold = false; ///< it was asked for the value and did not answer
    };

    double shown(Setting setting) const;
    QString textOf(Setting setting, double value) const;
    QVector<QWidget *> widgetsOf(Setting setting) const;
    bool differ(Setting setting, double a, double b) const;
    bool isUntold(Setting setting) const;
    void hold(Setting setting, double value);
    void mark(Setting setting);
    void markAll();
    void fillFrequencyUnits();
    void watchButton(QRadioButton *button, Setting setting);

    Ui::MainWindow *m_ui;
    std::map<Setting, Held> m_held;
    Outcome m_outcome = Outcome::Ok;
    int m_frequencyFactor = 1000000; // kHz in one of the shown unit
    bool m_isToggled = false;        // by the click under way
};
