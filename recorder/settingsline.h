#pragma once

#include "meter/metervalues.h"
#include "recorder/jsonline.h"

/// \a settings as keys `frequency_hz`, `offset_db`, `averaging`, `unit`, `relative`; what the
/// instrument has not told is null.
JsonLine settingsLine(const MeterSettings &settings);

/// The same without what the instrument has not told.
JsonLine toldSettingsLine(const MeterSettings &settings);
