#pragma once

#include "map/Document.h"

#include <future>

/// Loads a document on threads of their own, while the thread of the windows makes the toolkit and the controls ready.
///
/// The document, and with it the table of all texts, has one owner at a time: first the thread that reads the database,
/// then the one that reads the definition file, then the caller. A database that cannot be read stops the loading: its
/// user has to be told before anything is done with the definition file.
class DocumentLoading
{
public:
    /// Begins at once. Where no thread is to be had, the files are read when they are waited for.
    /// @param opened  with nothing loaded yet; outlives this object
    explicit DocumentLoading(Document& opened);

    /// Waits until nothing is read any more.
    ~DocumentLoading() = default;
    DocumentLoading(const DocumentLoading&) = delete;
    DocumentLoading& operator=(const DocumentLoading&) = delete;

    /// Waits for the tag database. From here on it may be looked at; the rest of the document may not, and no text may
    /// be interned, before `finish`.
    LoadResult waitForDatabase() const;

    /// Waits for the definition file too, or reads it now if the database could not be read. The document is the
    /// caller's from here on.
    void finish();

private:
    Document& document;
    std::shared_future<LoadResult> database;
    std::future<bool> definition; ///< whether the file was read
};
