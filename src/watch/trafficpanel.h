#pragma once

#include <QWidget>

class TrafficModel;

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class QTimer;
QT_END_NAMESPACE

/// Shows the lines of a TrafficModel as they pass, those that hold a text, and copies them.
class TrafficPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TrafficPanel(TrafficModel *model, QWidget *parent = nullptr);

    void retranslate();
    /// The selected rows or, without a selection, all that are shown, a line each.
    QString text() const;

    /// Low, so that the console keeps its room.
    QSize sizeHint() const override { return {600, 170}; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    TrafficModel *m_model;
    QSortFilterProxyModel *m_shown;
    QTableView *m_view;
    QTimer *m_scroll; // once for many lines
    QLabel *m_filterLabel;
    QLineEdit *m_filter;
    QPushButton *m_pause;
    QPushButton *m_copy;
    QPushButton *m_clear;
};
