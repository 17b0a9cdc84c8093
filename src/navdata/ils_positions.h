// Moves each ILS from its antenna to the threshold it serves.
#pragma once

struct NavDatabase;

// For every airport, ILS and runway: where the runway names the ILS, the ILS
// takes the runway's length (feet) and moves by that length along the reverse
// of its course. An ILS that no runway names keeps position and length 0.
// Always true.
bool ReassignILSCoords(NavDatabase& database);
