// The whole life of Option.exe after the system is prepared: host switches, settings read at start,
// the command line, the language, exactly one target, and the tidy-up with the hand-back to the host.
#pragma once

#include <string>
#include <vector>

#include "app/AppServices.h"
#include "app/StartupTargets.h"

// arguments: the command line without the program's own name.
void RunStartup(AppServices& app, StartupTargets& targets, const std::vector<std::wstring>& arguments);

// "Software\Tarnwick\QOR\Command\Option": the tool's own values.
std::wstring CommandOptionRootPath();
