#pragma once

/// True when a person sees standard output at once.
bool outputIsTerminal();

/// Lets bytes pass through standard input and output as they are. Until the program ends, a terminal takes them for
/// UTF-8.
void passBytesThrough();
