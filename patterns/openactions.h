#pragma once

#include <QObject>
#include <QStringList>

class CurveDesk;

namespace Ui {
class PatternWindow;
}

/// The entries of the *File* menu by which curves come in: files, samples, recent files.
class OpenActions : public QObject
{
    Q_OBJECT

public:
    /// \a ui and \a desk must outlive this object.
    OpenActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent = nullptr);

    /// Opens files and tells the user what was wrong with any of them.
    void openFiles(const QStringList &files);

    /// Fills the menu of recent files, in the current language.
    void showRecentFiles();

private:
    void ask();
    void openSamples();

    Ui::PatternWindow &m_ui;
    CurveDesk &m_desk;
};
