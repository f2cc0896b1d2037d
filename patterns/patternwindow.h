#pragma once

#include "patterns/curvedesk.h"

#include <QMainWindow>

#include <memory>

class EditActions;
class LossActions;
class MeasureMenu;
class OpenActions;
class SaveActions;
class ViewActions;

namespace Ui {
class PatternWindow;
}

/// One window of the workbench: a list chart form below the menus that act on it.
class PatternWindow : public QMainWindow, public CurveDesk
{
    Q_OBJECT

public:
    /// \a context must outlive the window.
    explicit PatternWindow(WindowContext &context, QWidget *parent = nullptr);
    ~PatternWindow() override;

    OpenActions &opening() const { return *m_open; }
    SaveActions &saving() const { return *m_save; }
    LossActions &losses() const { return *m_loss; }
    MeasureMenu &measuring() const { return *m_measure; }

    QWidget *dialogParent() override { return this; }
    ListChart &form() const override;
    CurveHistory &history() override { return *m_history; }
    WindowContext &context() override { return m_context; }
    void tell(const QString &text) override;
    void warn(const QString &text, const QStringList &details = {}) override;
    bool save(const QString &file, const QByteArray &content) override;
    void addStrip(QWidget *strip) override;
    void openRun(const QString &file) override;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_actionAbout_triggered();

private:
    void updateActions();
    void takeInitialSize();

    WindowContext &m_context;
    std::unique_ptr<Ui::PatternWindow> ui;
    std::unique_ptr<CurveHistory> m_history;
    std::unique_ptr<OpenActions> m_open;
    std::unique_ptr<SaveActions> m_save;
    std::unique_ptr<EditActions> m_edit;
    std::unique_ptr<ViewActions> m_view;
    std::unique_ptr<LossActions> m_loss;
    std::unique_ptr<MeasureMenu> m_measure;
};
