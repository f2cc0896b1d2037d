#pragma once

#include "scenario.h"

/// The campaign's list of scenarios. It depends on nothing but the arguments, so that a name means
/// the same in every run.
namespace Scenarios {

/// Every kind of fault at every place, and what needs no fault of the instrument, in both modes.
QVector<Scenario> systematic();

/// \a count combinations of faults and deeds, drawn from \a seed and named after seeds of their
/// own.
QVector<Scenario> random(int count, quint32 seed);

/// A few of both that have every kind of fault among them, each group of places, and both modes.
QVector<Scenario> slice();

/// The scenario called \a name; one without deeds when there is none.
Scenario named(const QString &name);

} // namespace Scenarios
