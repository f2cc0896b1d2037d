#pragma once

#include <QCoreApplication>
#include <QPixmap>
#include <QString>
#include <QVector>

#include <optional>

class PathInfo;
class QWidget;

/// What an exchange of curves has to know of its chart view, and may do to it.
class ExchangeTarget
{
public:
    virtual ~ExchangeTarget() = default;

    /// The window that dialogs belong to.
    virtual QWidget *dialogParent() = 0;
    virtual QString chartTitle() const = 0;
    /// The curve to give away, null without one.
    virtual PathInfo *selectedPath() const = 0;
    /// Whether a curve has this name.
    virtual bool hasCurve(const QString &name) const = 0;
    /// Takes in a curve under a free name.
    virtual PathInfo *addCurve(const QString &name, const QVector<QPointF> &points) = 0;
    /// Takes note of the name that an imported file gives its curve.
    virtual void setSeriesName(QString name) = 0;
    virtual QPixmap picture() = 0;
    /// The curve \a pathId is in \a fileName now.
    virtual void noteExport(int pathId, const QString &fileName) = 0;
};

/// The ways in which curves leave and enter one chart view: clipboard, drag and drop, CSV files,
/// and the chart's picture. Asks and tells the user by itself.
class CurveExchange
{
    Q_DECLARE_TR_FUNCTIONS(CurveExchange)

public:
    /// \a target must outlive this object.
    explicit CurveExchange(ExchangeTarget &target);

    /// Where the file dialogs start; "./" at first, later the folder of the last file, with a slash
    /// at its end.
    QString defaultDirectory() const { return m_defaultDirectory; }
    void setDefaultDirectory(const QString &directory) { m_defaultDirectory = directory; }

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

    ExchangeTarget &m_target;
    QString m_defaultDirectory = QStringLiteral("./");
};
