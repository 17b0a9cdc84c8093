// A moment as XML writes it: "2026-01-02T03:04:05Z".
#pragma once

#include <chrono>
#include <string>

std::string TimeText(std::chrono::sys_seconds moment);
