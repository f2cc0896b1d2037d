#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

class ConsoleTester;
class Instrument;

/// Sees what the console is told, shows and records, and holds every row of the record against what
/// the instrument sent over the same link.
class Witness : public QObject
{
public:
    Witness(const ConsoleTester &console, Instrument &instrument);

    /// To be called right before the console opens a link.
    void linkBegins();
    /// From now on there is no excuse for a reading that did not come.
    void expectNoFaults() { m_faultless = true; }
    /// Looks for new rows; to be called after whatever may have written one.
    void readRows();
    void sawBox(const QString &title, const QString &text);
    /// To be called for every zeroing or calibration that is begun.
    void taskBegins() { ++m_tasks; }

    /// Readings that the console was told of, in all.
    int readings() const { return m_readings; }
    /// Readings that the console asked for, in all.
    int polls() const { return m_polls; }
    int rows() const { return m_rows; }
    /// Rows that the present link has given with a true reading in them.
    int trueRows() const { return m_trueRows; }
    QStringList boxes() const { return m_boxes; }
    int errorBoxes() const { return m_boxes.filter(QStringLiteral("Note: ")).size(); }

    QStringList faultsOfRows() const { return m_faultsOfRows; }
    QStringList faultsOfBoxes() const { return m_faultsOfBoxes; }

private:
    void takeReading(double power, const QString &text);
    void takeCommand(const QString &command);
    void takeRecordDue();
    void judge(const QString &row);

    const ConsoleTester &m_console;
    Instrument &m_instrument;
    QHash<QString, qint64> m_read; // bytes of each record that were looked at
    QString m_reading;             // what the console was last told on this link
    int m_mark = 0;                // in the instrument's trace, where this link began
    int m_readings = 0;
    int m_polls = 0;
    int m_rows = 0;
    int m_trueRows = 0;
    int m_tasks = 0;
    int m_errorBoxesOfLink = 0;
    int m_resultBoxes = 0;
    bool m_faultless = false;
    QStringList m_boxes;
    QStringList m_faultsOfRows;
    QStringList m_faultsOfBoxes;
};
