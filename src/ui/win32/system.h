#pragma once

/// The system's headers.
#include <windows.h>
// These need windows.h before them.
#include <cderr.h>
#include <commctrl.h>
#include <commdlg.h>
#include <oleacc.h>
#include <shellapi.h>
#include <shlobj.h>
