#pragma once

#include "result.h"
#include "scenario.h"

/// The campaign's figures as tables in Markdown: by group of scenarios, and by kind of fault.
QString reportOf(const QVector<Scenario> &scenarios, const QVector<Result> &results);
