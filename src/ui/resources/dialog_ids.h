#pragma once

/// Ids of the dialogs' controls other than OK and Cancel. They are macros because the resource compiler supports no
/// other constants.
// NOLINTBEGIN(modernize-macro-to-enum)

// DBNEW
#define NEW_SIZE 10
#define NEW_SIZE_ARROWS 11
#define NEW_MINIMUM 12
#define NEW_WINDOWS_COLORS 13
#define NEW_RED_LABEL 20
#define NEW_RED 21
#define NEW_RED_ARROWS 22
#define NEW_GREEN_LABEL 23
#define NEW_GREEN 24
#define NEW_GREEN_ARROWS 25
#define NEW_BLUE_LABEL 26
#define NEW_BLUE 27
#define NEW_BLUE_ARROWS 28

// DBNEWFROMIMAGE
#define FROM_IMAGE_FIRST_TEXT 10
#define FROM_IMAGE_SECOND_TEXT 11
#define FROM_IMAGE_FOUND 12
#define FROM_IMAGE_SIZE 13
#define FROM_IMAGE_USE_ALL 80
#define FROM_IMAGE_REDUCE 81

// DBABOUT
#define ABOUT_ICON 10
#define ABOUT_NAME 11
#define ABOUT_VERSION 12

// NOLINTEND(modernize-macro-to-enum)
