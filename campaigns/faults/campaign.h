#pragma once

#include "result.h"
#include "scenario.h"

#include <QObject>
#include <QTemporaryDir>

#include <functional>

/// Has every scenario carried out by a process of its own, so that a crash or a hang costs that one
/// alone and nothing passes from one to the next; several at a time, as they mostly wait.
class Campaign : public QObject
{
public:
    /// \a told is called with each result as it comes.
    Campaign(const QVector<Scenario> &scenarios, int jobs,
             std::function<void(const Result &)> told);

    /// Returns when all are done, the results in the order of the scenarios.
    QVector<Result> run();

private:
    void startNext(int job);
    void finish(int scenario, const Result &result, int job);
    /// The program under another path: the console keeps its files beside the program that runs.
    QString programOf(int job);

    QVector<Scenario> m_scenarios;
    QVector<Result> m_results;
    std::function<void(const Result &)> m_told;
    QTemporaryDir m_folder;
    int m_jobs;
    int m_next = 0;
    int m_running = 0;
};
