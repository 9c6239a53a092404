// What tests prepare in the in-memory file system, and what they look at.
#include <algorithm>

#include "tests/doubles/memory_file_system.h"

namespace zentar {

void MemoryFileSystem::AddDrive(const std::string& root, std::uint64_t capacity) {
    const Result<PathParts> parts = SplitPath(root);
    if (!parts.Ok()) {
        ADD_FAILURE() << "Not a drive's root: " << root;
        return;
    }
    const auto space = std::make_shared<DriveSpace>();
    space->capacity = capacity;
    const Node node = std::make_shared<MemoryNode>(space);
    node->isFolder = true;
    node->name = parts.Value().root;
    drives_[FoldName(parts.Value().root)] = node;
}

void MemoryFileSystem::RemoveDrive(const std::string& root) {
    const Result<PathParts> parts = SplitPath(root);
    if (parts.Ok())
        drives_.erase(FoldName(parts.Value().root));
}

void MemoryFileSystem::AddDriveFor(const std::string& root, const std::string& folder) {
    const Result<PathParts> parts = SplitPath(root);
    if (parts.Ok())
        drives_[FoldName(parts.Value().root)] = MustFind(folder);
}

void MemoryFileSystem::SetFreeSpace(const std::string& root, std::uint64_t bytes) {
    DriveSpace& space = *MustFind(root)->space;
    space.capacity = space.used + bytes;
}

void MemoryFileSystem::AddFolder(const std::string& path) {
    const Result<PathParts> parts = SplitPath(path);
    if (!parts.Ok() || !MakeFolders(parts.Value(), parts.Value().names.size())) {
        ADD_FAILURE() << "No folder can be here: " << path;
    }
}

void MemoryFileSystem::AddFile(const std::string& path, std::string_view bytes,
                               FileTime lastWrite) {
    AddHugeFile(path, bytes.size(), 0, bytes);
    if (lastWrite != 0)
        MustFind(path)->lastWrite = lastWrite;
}

void MemoryFileSystem::AddHugeFile(const std::string& path, std::uint64_t length,
                                   std::uint64_t offset, std::string_view bytes) {
    const Result<PathParts> parts = SplitPath(path);
    if (!parts.Ok() || parts.Value().names.empty() || parts.Value().endsInBackslash ||
        !MakeFolders(parts.Value(), parts.Value().names.size() - 1)) {
        ADD_FAILURE() << "No file can be here: " << path;
        return;
    }
    const Result<Place> place = Find(path);
    if (place.Value().node)
        TakeOut(place.Value());
    const Node node = NewNode(place.Value(), false);
    const bool fits = node->AppendZeros(offset) && node->Append(bytes) &&
                      node->AppendZeros(length - offset - bytes.size());
    if (!fits)
        ADD_FAILURE() << "The drive has no room for " << path;
}

void MemoryFileSystem::SetReadOnly(const std::string& path, bool on) {
    MustFind(path)->readOnly = on;
}

void MemoryFileSystem::SetHidden(const std::string& path, bool on) { MustFind(path)->hidden = on; }

void MemoryFileSystem::SetLocked(const std::string& path, bool on) { MustFind(path)->locked = on; }

void MemoryFileSystem::SetReadingDenied(const std::string& path, bool on) {
    MustFind(path)->readingDenied = on;
}

void MemoryFileSystem::SetWritingDenied(const std::string& folder, bool on) {
    MustFind(folder)->writingDenied = on;
}

void MemoryFileSystem::Remove(const std::string& path) {
    const Result<Place> place = Find(path);
    if (!place.Ok() || !place.Value().node || !place.Value().parent) {
        ADD_FAILURE() << "Nothing to remove: " << path;
        return;
    }
    TakeOut(place.Value());
}

bool MemoryFileSystem::Exists(const std::string& path) const { return FindNode(path).Ok(); }

bool MemoryFileSystem::IsReadOnly(const std::string& path) const {
    return MustFind(path)->readOnly;
}

std::string MemoryFileSystem::Contents(const std::string& path) const {
    return MustFind(path)->bytes.Text();
}

std::vector<std::string> MemoryFileSystem::Names(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& [key, child] : MustFind(folder)->children)
        names.push_back(child->name);
    std::sort(names.begin(), names.end());
    return names;
}

std::map<std::string, std::string> MemoryFileSystem::AllFiles() const {
    std::map<std::string, std::string> files;
    for (const auto& [key, drive] : drives_)
        Collect(*drive, drive->name + "\\", files);
    return files;
}

void MemoryFileSystem::Collect(const MemoryNode& folder, const std::string& path,
                               std::map<std::string, std::string>& files) {
    for (const auto& [key, child] : folder.children) {
        if (child->isFolder) {
            Collect(*child, path + child->name + "\\", files);
        } else {
            files[path + child->name] = child->bytes.Text();
        }
    }
}

ReadRecord MemoryFileSystem::Reads(const std::string& path) const {
    const auto record = reads_.find(FoldName(path));
    return record == reads_.end() ? ReadRecord() : *record->second;
}

int MemoryFileSystem::TotalOpens() const {
    int opens = 0;
    for (const auto& [path, record] : reads_)
        opens += record->opens;
    return opens;
}

// A stand-in for what is missing keeps the test going to its end.
MemoryFileSystem::Node MemoryFileSystem::MustFind(const std::string& path) const {
    const Result<Node> node = FindNode(path);
    if (node.Ok())
        return node.Value();
    ADD_FAILURE() << "The file system has no " << path;
    return std::make_shared<MemoryNode>(std::make_shared<DriveSpace>());
}

// The first `count` folders of a path, made where they are missing; nothing when a file is in the
// way or the drive is missing.
MemoryFileSystem::Node MemoryFileSystem::MakeFolders(const PathParts& parts, std::size_t count) {
    Node node = Root(parts.root);
    for (std::size_t i = 0; node && i < count; ++i) {
        const auto child = node->children.find(FoldName(parts.names[i]));
        Place place{node, parts.names[i], nullptr, false};
        node = child != node->children.end() ? child->second : NewNode(place, true);
        if (!node->isFolder)
            return nullptr;
    }
    return node;
}

}  // namespace zentar
