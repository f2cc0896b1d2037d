#pragma once

#include <QObject>
#include <QString>

class CurveDesk;
struct PatternChoice;

namespace Ui {
class PatternWindow;
}

/// The entries of the *File* menu by which curves, pictures and reports go out, and the question
/// that keeps curves from being lost with their window.
class SaveActions : public QObject
{
    Q_OBJECT

public:
    /// \a ui and \a desk must outlive this object.
    SaveActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent = nullptr);

    /// These write the file whole or leave it as it was, and tell the user what went wrong.
    bool saveCurve(const QString &file);
    /// PNG, JPEG, SVG or PDF by its suffix.
    bool savePicture(const QString &file);
    /// HTML, or PDF for a file of that suffix.
    bool saveReport(const QString &file);
    /// Writes \a choice as a pattern file; says what keeps the curves from it.
    bool savePattern(const PatternChoice &choice, const QString &file);

    /// Asks what is to become of curves that only this window holds. Returns false when the window
    /// is to stay.
    bool mayClose();

    /// Shows what can be chosen now.
    void update();

private:
    QString ask(const QString &caption, const QString &name, const QVector<struct SaveFormat> &);
    void askCurve();
    void askPicture();
    void askReport();
    void askPattern();
    void print();
    bool saveAll(const QList<int> &ids);
    bool saveOne(int id, const QString &file);
    void noteSaved(int id, const QString &file);

    Ui::PatternWindow &m_ui;
    CurveDesk &m_desk;
};
