#pragma once

#include <QString>

// The login name of whoever runs the program on this computer, as the system knows it: what the
// request history records as the author of a change. Never empty.
QString NumeUtilizator();
