#pragma once

/// How every window of the programs takes and shows numbers, whatever the system's locale.
namespace InputRules {

/// From now on numbers are shown and read with a decimal point and European digits and without
/// group separators; a comma in a number box counts as the point unless the number has one already,
/// and is left out of a count where three digits follow; and a wheel over a box that has not the
/// focus scrolls what is around it, so that no value changes unseen. Needs the application object;
/// calling it again does nothing.
void install();

} // namespace InputRules
