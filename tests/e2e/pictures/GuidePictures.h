#pragma once

class Studio;

// One function for each set of pictures that shows the program in the same state.

void takeMainWindow(Studio& studio);
void takeMistakes(Studio& studio);
void takeFilter(Studio& studio);
void takeFirstPublished(Studio& studio);
void takeViews(Studio& studio);

void takeEditor(Studio& studio);
void takeSettings(Studio& studio);
void takeReplace(Studio& studio);
void takeSaveQuestion(Studio& studio);
void takePasteRefused(Studio& studio);

void takePaste(Studio& studio);
void takeAppend(Studio& studio);
void takeShove(Studio& studio);
void takeCompress(Studio& studio);
