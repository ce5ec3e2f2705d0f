#pragma once

/// What editing commands say to the user, word for word.

/// Shown when a paste finds too few free registers.
constexpr const char* pasteRefusedText =
    "Cannot paste here - there is not enough room before reaching either a locked register or the end of the register "
    "space";

/// Shown when a range to compress holds a locked register.
constexpr const char* compressRefusedText =
    "This action can not be completed as the selected range contains locked registers";

/// Asked before the registers in error are deleted.
constexpr const char* purgeQuestionText =
    "This will delete all registers that contain an error.\nAre you sure you want to continue?";

/// Caption of the questions that want a Yes or a No.
constexpr const char* confirmationCaption = "Confirmation";
