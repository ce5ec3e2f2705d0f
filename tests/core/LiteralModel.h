#pragma once

#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/RegisterMap.h"
#include "map/RegisterMoves.h"

#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The editing rules written out one slot and one step at a time, recursion and all, without a thought for speed.
///
/// What the system does has to equal this, on any map, after any sequence of commands. It shares the types of the
/// system and none of its operations. Pages that were ever written to are noted: all other slots are free.
class LiteralModel
{
public:
    static constexpr int pageLength = 64;
    static constexpr int pagesPerSpace = registersPerSpace / pageLength;

    LiteralModel();

    const RegisterEntry& at(int space, int address) const;
    void set(int space, int address, const RegisterEntry& slot);

    /// Frees every slot that was written to.
    void reset();

    bool isTouched(int space, int page) const;

    std::vector<int> collectSelection(const std::vector<int>& rows) const;
    void copy(const std::vector<int>& addresses);
    void erase(const std::vector<int>& addresses);
    void cut(const std::vector<int>& addresses);
    PasteResult paste(int row);
    bool append(int row);
    bool moveSlot(int address, MoveDirection direction, bool shoving, std::vector<int>& changed);
    MoveResult moveSlots(std::vector<int> addresses, MoveDirection direction, bool shoving);
    CompressResult compress(const std::vector<int>& addresses);
    void toggleLocks(const std::vector<int>& addresses);
    void purge();
    void replace(const std::vector<int>& addresses, const std::string& find, const std::string& replacement);
    void insertClipboard(int target);
    std::optional<int> editedHead(int row) const;
    RegisterEntry editedEntry(int head) const;
    void edit(int head, const RegisterEntry& entry);

    int currentSpace = 3;
    std::vector<RegisterEntry> clipboard;

private:
    const RegisterEntry& current(int address) const;
    RegisterEntry& write(int space, int address);
    RegisterEntry& writeCurrent(int address);
    void clear(int space, int address);
    bool eraseObject(int space, int address);
    void insert(const std::vector<RegisterEntry>& elements, int target);

    std::unique_ptr<std::array<RegisterSlots, spaceCount>> spaces;
    std::array<std::bitset<pagesPerSpace>, spaceCount> touched;
};
