#pragma once

#include <array>
#include <string_view>

namespace quillhue {

/// Fixed texts of the main window. Once a document is open, it determines the title.

inline constexpr std::wstring_view kWelcomeTitle = L"Quillhue - Welcome";
/// Shown in the status bar.
inline constexpr std::string_view kVersionText = "Version " QUILLHUE_VERSION;
/// Titles of the tabs, in the order of ActiveTab starting with `values`.
inline constexpr std::array<std::string_view, 3> kTabTitles{"Edit Values", "Apply Effects", "Use Palette"};

/// Captions of message boxes.
inline constexpr std::string_view kInformationCaption = "Quillhue";
inline constexpr std::string_view kWarningCaption = "Warning";
inline constexpr std::string_view kErrorCaption = "Error";
inline constexpr std::string_view kSaveAsCaption = "Save As";

/// Shown when the full name of a file is too long for the system's dialogs.
inline constexpr std::string_view kNameTooLongText = "The name of the file is too long.";

/// Fatal errors at startup.
inline constexpr std::string_view kNoWindowClassText = "Could not register window.";
inline constexpr std::string_view kNoWindowText = "Could not create window.";

/// Shown above the number of colors in the dialog that makes a palette from an image.
inline constexpr std::array<std::string_view, 2> kFromImageTexts{"This image does not have a palette, but its",
                                                                 "colors can be used to create a new one."};

}  // namespace quillhue
