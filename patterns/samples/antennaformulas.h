#pragma once

/// Far-field patterns of four antennas from their textbook formulas.
///
/// Every function takes an angle in degrees and returns the field strength there relative to the
/// greatest one (0 to 1); every directivity is a plain ratio, not dB. The formulas are those of any
/// antenna textbook (see for instance Balanis, "Antenna Theory: Analysis and Design").
namespace AntennaFormulas {

/// Half-wave dipole, \a degrees counted from the dipole's axis: cos(pi/2 cos t) / sin t.
/// Half-power beam width 78 degrees, nulls along the axis.
double halfWaveDipole(double degrees);

/// Directivity of the half-wave dipole: 1.643, that is 2.15 dBi.
double halfWaveDipoleDirectivity();

/// E plane of a thin patch on a wide ground plane, its two radiating edges \a length wavelengths
/// apart: cos(pi length sin t). Meant for -90 to 90 degrees: the ground plane hides what is behind.
/// Half-power beam width 2 asin(1 / (4 length)).
double patch(double degrees, double length);

/// Directivity of two narrow radiating edges: 6.6, that is 8.2 dBi.
double patchDirectivity();

/// H plane of a horn whose aperture is \a width wavelengths wide and carries the field of the
/// dominant mode (a cosine across it) in one phase, with the obliquity factor (1 + cos t) / 2.
/// Half-power beam width about 68.8 / width degrees, first side lobe about 23 dB down.
double horn(double degrees, double width);

/// Directivity of that aperture, \a height wavelengths high: 0.81 (8 / pi squared) times 4 pi times
/// its area in square wavelengths.
double hornDirectivity(double width, double height);

/// Uniform broadside array of \a elements isotropic elements half a wavelength apart:
/// sin(N u / 2) / (N sin(u / 2)) with u = pi sin t. Meant for -90 to 90 degrees.
/// The first side lobe of a long one is 13.26 dB down.
double uniformArray(double degrees, int elements);

/// Directivity of that array: exactly its number of elements.
double uniformArrayDirectivity(int elements);

} // namespace AntennaFormulas
