#pragma once

#include "Logic/linkmode.h"

#include <QString>

class QMainWindow;
struct ConsoleSettings;

namespace Ui {
class MainWindow;
}

/// What the console's form shows and lets the user do, apart from what follows from it: the one
/// place that enables widgets, and the entry of the frequency with its unit. Nothing here sends
/// anything to the instrument or makes a signal of the form do so.
class ConsolePanel
{
public:
    /// Puts the form of \a window into its first state. The window filters the keys of the boxes
    /// whose value Enter sends.
    ConsolePanel(Ui::MainWindow *form, QMainWindow *window);

    /// Shows all texts in the current language. The unit of the frequency goes back to kHz.
    void retranslate();

    /// Enables and shows what a link of this \a mode, \a open or not, lets the user do.
    void showLinkState(LinkMode mode, bool open);

    void showFrequency(double value, const QString &unit);
    /// Takes over the unit \a name and converts the shown value; an unknown name changes nothing.
    void changeFrequencyUnit(const QString &name);
    /// The frequency as it is sent, in the shown unit.
    QString frequency() const;

    /// "dBm" and "DBM" are dBm, anything else is watts.
    void showPowerUnit(const QString &unit);
    /// "ON" is on and locks the power unit, anything else is off.
    void showRelativeState(const QString &state);
    /// \a power in dBm, and the instrument's own \a text of it.
    void showReading(double power, const QString &text);
    /// Makes the reading as large as the window has room for.
    void fitReading();

    /// Minutes between two records.
    int recordInterval() const;
    void setRecordFolder(const QString &folder);
    /// Back to "DataRecord" in the current directory, which is created if need be.
    void setDefaultRecordFolder();
    /// What of the settings the panel shows: all but language and address.
    ConsoleSettings settings() const;
    /// Shows that part of \a settings; a folder of records that is gone becomes the program's own.
    void showSettings(const ConsoleSettings &settings);
    /// Appends the shown values to the record of the day.
    void saveRecord() const;

private:
    void fillFrequencyUnits();
    void setShortcuts();

    Ui::MainWindow *m_ui;
    QMainWindow *m_window;
    int m_frequencyFactor = 1000000; // kHz in one of the shown unit
};
