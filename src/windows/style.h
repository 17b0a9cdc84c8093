// How the program looks: its colours, its fonts and the style sheet, all in
// one place. Quiet, so that the map is what catches the eye: dark by night,
// where nothing may blind, light by day. Which of the two is on is in the
// application's palette.
#pragma once

#include <QApplication>
#include <QFont>
#include <QIcon>

// The font of the map's texts; QtDrawSurface sets its size.
QFont MapFont();

// The colour of a line drawing on a button in this state.
QColor IconColor(QIcon::Mode mode, QIcon::State state);

// The frame around what has the keyboard.
QColor FocusColor();

// The plan's table: pictures of waypoints on the way, of procedures, of the
// airports, and what lies behind the rows of a procedure.
QColor EnrouteColor();
QColor ProcedureColor();
QColor AirportColor();
QColor ProcedureTint();

// Palette, font and style sheet for every window, those that are open too.
void ApplyStyle(QApplication& application, bool night = true);
bool IsNightStyle();
