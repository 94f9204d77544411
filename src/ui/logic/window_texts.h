#pragma once

#include <array>
#include <string_view>

namespace quillhue {

/// What the main window shows and nothing else decides. The title follows the document as soon as there is one.

inline constexpr std::wstring_view kWelcomeTitle = L"Quillhue - Welcome";
/// For the status bar.
inline constexpr std::string_view kVersionText = "Version " QUILLHUE_VERSION;
/// The tabs, in the order of ActiveTab from values on.
inline constexpr std::array<std::string_view, 3> kTabTitles{"Edit Values", "Apply Effects", "Use Palette"};

/// The captions of message boxes.
inline constexpr std::string_view kInformationCaption = "Quillhue";
inline constexpr std::string_view kWarningCaption = "Warning";
inline constexpr std::string_view kErrorCaption = "Error";
inline constexpr std::string_view kSaveAsCaption = "Save As";

/// Of a file's full name that the system's dialogs do not take.
inline constexpr std::string_view kNameTooLongText = "The name of the file is too long.";

/// Fatal at start-up.
inline constexpr std::string_view kNoWindowClassText = "Could not register window.";
inline constexpr std::string_view kNoWindowText = "Could not create window.";

/// Of the dialog that makes a palette from an image, above the count.
inline constexpr std::array<std::string_view, 2> kFromImageTexts{"This image does not have a palette, but its",
                                                                 "colors can be used to create a new one."};

}  // namespace quillhue
