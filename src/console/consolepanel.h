#pragma once

#include "Logic/linkmode.h"
#include "console/powerdisplay.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

class LinkSession;
class QMainWindow;
class RecordKeeper;
struct ConsoleSettings;

namespace Ui {
class MainWindow;
}

/// What the console's form shows and lets the user do, apart from what follows from it: the one
/// place that enables widgets, and the entry of the frequency with its unit. Nothing here sends
/// anything to the instrument or makes a signal of the form do so.
class ConsolePanel
{
    Q_DECLARE_TR_FUNCTIONS(ConsolePanel)

public:
    /// Puts the form of \a window into its first state. The window filters the keys of the boxes
    /// whose value Enter sends.
    ConsolePanel(Ui::MainWindow *form, QMainWindow *window);

    /// Shows the form's texts in the current language.
    void retranslate();

    /// Enables and shows what a link of this \a mode, \a open or not, lets the user do.
    void showLinkState(LinkMode mode, bool open);

    /// Lists the serial ports of the machine anew when they have changed, which leaves the user's
    /// choice alone as long as it is there.
    void refreshPorts();
    /// Chooses the port \a name, also one that the machine does not list.
    void showPort(const QString &name);

    /// Shows the reading of \a session and what it is worth.
    void showReading(const LinkSession &session);
    /// Makes the reading as large as the window has room for, and room for the scroll bar beside
    /// the panel when it needs one.
    void fit();

    /// Minutes between two records.
    int recordInterval() const;
    /// The folder that the records go into.
    QString recordFolder() const;
    /// The same from now on, or nothing changes and the obstacle is told.
    std::optional<QString> chooseRecordFolder(const QString &folder);
    void setRecordFolder(const QString &folder);
    /// "DataRecord" in the current directory, which is created if need be.
    static QString defaultRecordFolder();
    /// What of the settings the panel shows: all but language and address.
    ConsoleSettings settings() const;
    /// Shows that part of \a settings; a folder of records that is gone becomes the program's own.
    void showSettings(const ConsoleSettings &settings);
    /// Shows when the last row was written, or since when none could be.
    void showRecords(const RecordKeeper &records);

private:
    void setShortcuts();

    Ui::MainWindow *m_ui;
    QMainWindow *m_window;
    PowerDisplay m_power;
    QStringList m_knownPorts;
    QString m_unlistedPort; // chosen all the same
    QString m_recordFolder; // what the line holds, but for what is being typed
};
