#pragma once
// The in-memory editor, all of it. See vbe.h for how a test builds one.

#include "hosts/memory/code_module.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/command_bar_controls.h"
#include "hosts/memory/command_bars.h"
#include "hosts/memory/components.h"
#include "hosts/memory/dispatch.h"
#include "hosts/memory/events.h"
#include "hosts/memory/options.h"
#include "hosts/memory/project.h"
#include "hosts/memory/vbe.h"
#include "hosts/memory/windows.h"
