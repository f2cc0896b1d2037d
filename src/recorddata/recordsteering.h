#pragma once

#include "2d/data/viewrange.h"

/// What zooming, moving and fitting make of the part of a record that a chart shows: times in x
/// (s), levels in y (dBm or dB).
class RecordSteering
{
public:
    /// Of a record from \a begin to \a end.
    RecordSteering(double begin, double end)
        : m_begin(begin)
        , m_end(end)
    {}

    /// \a shown with all times of the record, and some room beside them.
    ViewRange all(const ViewRange &shown) const;
    /// \a range moved so that the record does not leave the middle of the view.
    ViewRange held(const ViewRange &range) const;
    /// The times stretched by \a factor about \a centre, out to ten times the record.
    ViewRange timeZoomed(const ViewRange &shown, double centre, double factor) const;

    /// The levels stretched by \a factor about \a centre.
    static ViewRange levelZoomed(const ViewRange &shown, double centre, double factor);
    /// The levels round \a low to \a high in whole divisions, so that the axis stands still from
    /// one step of a zoom to the next.
    static ViewRange levelFitted(const ViewRange &shown, double low, double high);
    /// \a shown moved as far as \a time lies outside.
    static ViewRange reaching(const ViewRange &shown, double time);
    /// \a range, or the smallest that can be shown.
    static ViewRange largeEnough(const ViewRange &range);

private:
    double m_begin;
    double m_end;
};
