// The steps of the start-up that look at files but load no table.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/message_box.h"
#include "startup/session.h"

using LogLine = std::function<void(std::string_view)>;

// Names of the files without which the program does not start: the two
// variation grids and the intro picture; empty if all are there.
std::string MissingStructureFile(const AppFolder& home);

// strFSPath from VLMDbManager.ini. Always true.
bool SetCurrentFSPath(Session& session);

// Default folders for the external plan formats whose setting is empty.
// False if a folder cannot be created.
bool SetFlightplanFolders(Session& session);

// Unscrambles the stored network password in place. Always true.
bool DecryptIvaoPWord(Session& session);

// strAiracCycle from AIRAC.INI. True if a cycle is installed.
bool ReadAirac(Session& session);

// Logs name and size of the network's files; ReadOnlineDatabases says which
// networks' sector files are there (both: true).
bool ReadOnlineDatabases(Session& session, const LogLine& log);
bool Check4OnlineFiles(const Session& session, const LogLine& log);

// Log name and size; with a file missing or empty a message, and false.
bool Check4SidStarFiles(Session& session, const LogLine& log, MessageBox& messages);
bool Check4WeatherFile(Session& session, const LogLine& log, MessageBox& messages);

// The map objects that the pilot has placed. True also if there are none;
// false if a line could not be read.
bool ReadUserObjects(Session& session);

// True for a character code that a text may hold: 32..122, 128..167, 192..255.
bool CheckValidAscii(int code);
