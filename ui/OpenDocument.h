#pragma once

#include "map/Document.h"

/// Reads both files of a document and tells the user what is wrong with the tag database.
///
/// A bad database does not keep the map from being read, and a definition file that is missing is not worth a word: the
/// editor then opens on what there is.
void openDocument(Document& document);

/// Tells the user what is wrong with the tag database; says nothing when it was loaded.
void tellWhyNotLoaded(LoadResult result);
