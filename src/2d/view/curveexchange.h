#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

class GraphicsBase;
class PathInfo;

/// The ways in which curves leave and enter one chart view: clipboard, drag and drop, CSV files,
/// and the chart's picture. Asks and tells the operator by itself.
class CurveExchange
{
    Q_DECLARE_TR_FUNCTIONS(CurveExchange)

public:
    /// \a view must outlive this object.
    explicit CurveExchange(GraphicsBase &view);

    /// Puts the selected curve on the clipboard.
    void copy();

    /// Makes a new curve of the clipboard's text.
    void paste();

    /// Makes a new curve of a dropped text.
    void drop(const QString &text);

    /// Asks for a curve file and makes a new curve of it.
    void importData();

    /// Asks for a file name and writes the selected curve to it.
    void exportData();

    /// Asks for a file name and writes the view's picture to it.
    void exportImage();

private:
    PathInfo *curveToExport();
    QString askFileToWrite(const QString &filter);
    void addFromText(const QString &text);
    std::optional<QString> freeName(const QString &name);
    void rememberFolder(const QString &fileName);
    void tell(const QString &text, int kind);
    void tellFailure(const QString &text, const QString &reason);

    GraphicsBase &m_view;
};
