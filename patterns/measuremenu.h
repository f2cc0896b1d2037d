#pragma once

#include <QObject>

#include <memory>

class CurveDesk;
class MeasureDialog;
class Measurement;
class QAction;
class QMenu;
struct MeasureInputs;

/// The *Measure* menu of a window.
class MeasureMenu : public QObject
{
    Q_OBJECT

public:
    /// \a menu belongs to the window; it is hidden as long as it is empty. \a desk must outlive
    /// this object.
    MeasureMenu(QMenu &menu, CurveDesk &desk, QObject *parent = nullptr);
    /// Stops the table of a measurement that is under way.
    ~MeasureMenu() override;

    /// Shows the entries in the current language.
    void retranslate();

    /// Asks for what a measurement needs, with the addresses \a meter and \a rotator filled in
    /// where they are given.
    void measurePattern(const QString &meter = {}, const QString &rotator = {});
    /// Opens a run file: shows the curve of a complete run, and asks whether another goes on.
    void openRun(const QString &file);

private:
    void ask(const MeasureInputs &inputs, bool resumes);
    void begin(MeasureDialog &dialog);

    QMenu &m_menu;
    CurveDesk &m_desk;
    QAction *m_pattern;
    std::unique_ptr<Measurement> m_measurement;
};
