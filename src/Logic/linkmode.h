#pragma once

/// The two paths to the instrument, as the link, the connection dialog and the console number them.
enum LinkMode { serialLink = 0, lanLink = 1 };

/// The TCP port of every instrument, by which the console also tells a LAN connection apart.
constexpr int instrumentTcpPort = 5001;

/// The baud rate of the panel's Open button, and the instrument's as it is delivered.
constexpr int usualBaudRate = 115200;
