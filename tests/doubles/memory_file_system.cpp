#include "tests/doubles/memory_file_system.h"

#include <algorithm>
#include <cstdint>

namespace zentar {
namespace {

constexpr FileTime kClockStart = 134'081'424'000'000'000;  // 20 November 2025, 20:00:00 UTC
constexpr std::uint64_t kDefaultCapacity = 500'000'000'000;

// A fixed place for each name in the enumeration, related to nothing that a program could use.
std::uint32_t ShuffleKey(const std::string& name) {
    std::uint32_t hash = 2166136261u;
    for (const char c : name)
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 16777619u;
    return hash;
}

bool IsWithin(const MemoryNode& folder, const MemoryNode* wanted) {
    if (&folder == wanted)
        return true;
    return std::any_of(folder.children.begin(), folder.children.end(),
                       [&](const auto& child) { return IsWithin(*child.second, wanted); });
}

}  // namespace

MemoryFileSystem::MemoryFileSystem(EventLog* log)
    : log_(log), clock_(std::make_shared<TickingClock>(kClockStart)) {
    AddDrive("C:\\", kDefaultCapacity);
    AddDrive("D:\\", kDefaultCapacity);
}

Status MemoryFileSystem::Enumerate(const std::string& folder, const EntryVisitor& visit) {
    Log("Enumerate " + folder);
    if (!folder.ends_with('\\'))
        ADD_FAILURE() << "Enumerate without a backslash: " << folder;
    const Result<Place> place = Find(folder);
    if (!place.Ok())
        return place.Error();
    const Node node = place.Value().node;
    if (!node || !node->isFolder)
        return FileError::NotFound;
    if (node->readingDenied)
        return FileError::AccessDenied;
    std::vector<FolderEntry> entries;
    for (const auto& [key, child] : node->children)
        entries.push_back({child->name, child->Info()});
    if (place.Value().parent) {  // a drive's root has no dot entries
        entries.push_back({".", node->Info()});
        entries.push_back({"..", place.Value().parent->Info()});
    }
    std::sort(entries.begin(), entries.end(), [](const FolderEntry& a, const FolderEntry& b) {
        return ShuffleKey(a.name) < ShuffleKey(b.name);
    });
    for (const FolderEntry& entry : entries)
        visit(entry);
    return {};
}

Result<FileInfo> MemoryFileSystem::Info(const std::string& path) {
    const Result<Node> node = FindNode(path);
    if (!node.Ok())
        return node.Error();
    return node.Value()->Info();
}

Result<std::unique_ptr<ReadableFile>> MemoryFileSystem::OpenForReading(const std::string& path) {
    Log("OpenForReading " + path);
    const Result<Node> node = FindFile(path);
    if (!node.Ok())
        return node.Error();
    if (node.Value()->locked)
        return FileError::InUse;
    if (node.Value()->readingDenied)
        return FileError::AccessDenied;
    std::shared_ptr<ReadRecord>& record = reads_[FoldName(path)];
    if (!record)
        record = std::make_shared<ReadRecord>();
    return OpenNodeForReading(node.Value(), record);
}

Result<std::unique_ptr<WritableFile>> MemoryFileSystem::OpenForWriting(const std::string& path,
                                                                       WriteMode mode) {
    Log("OpenForWriting " + path);
    const Result<Place> place = Find(path);
    if (!place.Ok())
        return place.Error();
    if (place.Value().endsInBackslash || !place.Value().parent)
        return FileError::BadName;
    Node node = place.Value().node;
    if (!node) {
        if (place.Value().parent->writingDenied)
            return FileError::AccessDenied;
        node = NewNode(place.Value(), false);
        return OpenNodeForWriting(node, clock_);
    }
    if (mode == WriteMode::CreateNew)
        return FileError::AlreadyExists;
    if (node->isFolder || node->readOnly)
        return FileError::AccessDenied;
    if (node->Held())
        return FileError::InUse;
    if (mode == WriteMode::Truncate) {
        node->Empty();
        node->lastWrite = clock_->Tick();
    }
    return OpenNodeForWriting(node, clock_);
}

Status MemoryFileSystem::ClearAttributes(const std::string& path) {
    Log("ClearAttributes " + path);
    const Result<Node> node = FindNode(path);
    if (!node.Ok())
        return node.Error();
    node.Value()->readOnly = false;
    node.Value()->hidden = false;
    return {};
}

Status MemoryFileSystem::Rename(const std::string& from, const std::string& to) {
    Log("Rename " + from + " -> " + to);
    const Result<Place> source = Find(from);
    if (!source.Ok())
        return source.Error();
    const Node node = source.Value().node;
    if (!node)
        return FileError::NotFound;
    const Result<Place> target = Find(to);
    if (!target.Ok())
        return target.Error();
    if (!source.Value().parent || !target.Value().parent)
        return FileError::AccessDenied;
    if (node->space != target.Value().parent->space)
        return FileError::Other;
    if (target.Value().node && target.Value().node != node)
        return FileError::AlreadyExists;
    if (node->Held())
        return FileError::InUse;
    if (source.Value().parent->writingDenied || target.Value().parent->writingDenied) {
        return FileError::AccessDenied;
    }
    if (IsWithin(*node, target.Value().parent.get()))
        return FileError::InUse;
    TakeOut(source.Value());
    Put(target.Value(), node);
    return {};
}

Status MemoryFileSystem::Replace(const std::string& from, const std::string& to) {
    Log("Replace " + from + " -> " + to);
    const Result<Place> source = Find(from);
    const Result<Place> target = Find(to);
    if (!source.Ok())
        return source.Error();
    if (!target.Ok())
        return target.Error();
    const Node node = source.Value().node;
    if (!node)
        return FileError::NotFound;
    if (source.Value().parent != target.Value().parent) {
        ADD_FAILURE() << "Replace across folders: " << from << " -> " << to;
        return FileError::Other;
    }
    const Node old = target.Value().node;
    if (node->isFolder || (old && (old->isFolder || old->readOnly)))
        return FileError::AccessDenied;
    if (node->Held() || (old && old->Held()))
        return FileError::InUse;
    if (source.Value().parent->writingDenied)
        return FileError::AccessDenied;
    TakeOut(source.Value());
    Put(target.Value(), node);
    return {};
}

Status MemoryFileSystem::Overwrite(const std::string& path, std::uint64_t offset,
                                   std::string_view bytes) {
    Log("Overwrite " + path);
    const Result<Node> node = FindFile(path);
    if (!node.Ok())
        return node.Error();
    if (node.Value()->readOnly)
        return FileError::AccessDenied;
    if (node.Value()->Held())
        return FileError::InUse;
    MemoryNode& file = *node.Value();
    const std::uint64_t before = file.bytes.Length();
    if (offset > before)
        return FileError::Other;
    if (offset + bytes.size() > before + file.space->Free())
        return FileError::NoSpace;
    file.bytes.Overwrite(offset, bytes);
    file.space->used += file.bytes.Length() - before;
    node.Value()->lastWrite = clock_->Tick();
    return {};
}

Status MemoryFileSystem::Copy(const std::string& from, const std::string& to, bool overwrite) {
    Log("Copy " + from + " -> " + to);
    const Result<Place> source = Find(from);
    if (!source.Ok())
        return source.Error();
    const Node node = source.Value().node;
    if (!node)
        return FileError::NotFound;
    const Result<Place> target = Find(to);
    if (!target.Ok())
        return target.Error();
    if (node->isFolder || node->readingDenied)
        return FileError::AccessDenied;
    if (node->locked)
        return FileError::InUse;
    if (target.Value().endsInBackslash || !target.Value().parent)
        return FileError::BadName;
    const Node old = target.Value().node;
    if (old && !overwrite)
        return FileError::AlreadyExists;
    if (old == node || (old && old->Held()))
        return FileError::InUse;
    if (old && (old->isFolder || old->readOnly || old->hidden))
        return FileError::AccessDenied;
    if (!old && target.Value().parent->writingDenied)
        return FileError::AccessDenied;
    return CopyInto(source.Value(), target.Value());
}

// A copy for which there is no room leaves nothing, not even the file that it was to replace.
Status MemoryFileSystem::CopyInto(const Place& source, const Place& target) {
    const MemoryNode& from = *source.node;
    if (target.node)
        TakeOut(target);
    const std::uint64_t stillTaken = target.node ? target.node->bytes.Length() : 0;
    const Node copy = std::make_shared<MemoryNode>(target.parent->space);
    if (from.bytes.Length() > copy->space->Free() + stillTaken)
        return FileError::NoSpace;
    if (copiesStopHalfWay_) {
        const std::string bytes = from.bytes.Text();
        copy->bytes.Append(bytes.substr(0, bytes.size() / 2));
    } else {
        copy->bytes = from.bytes;
    }
    copy->space->used += copy->bytes.Length();
    copy->readOnly = from.readOnly;
    copy->hidden = from.hidden;
    copy->lastWrite = from.lastWrite;
    Put(target, copy);
    if (target.node)
        copy->name = target.node->name;
    return copiesStopHalfWay_ ? Status(FileError::Other) : Status();
}

Result<bool> MemoryFileSystem::IsSameFile(const std::string& one, const std::string& other) {
    const Result<Node> first = FindFile(one);
    const Result<Node> second = FindFile(other);
    if (!first.Ok() || !second.Ok())
        return first.Ok() ? second.Error() : first.Error();
    return first.Value() == second.Value();
}

Status MemoryFileSystem::Delete(const std::string& path) {
    Log("Delete " + path);
    const Result<Place> place = Find(path);
    if (!place.Ok())
        return place.Error();
    const Node node = place.Value().node;
    if (!node)
        return FileError::NotFound;
    if (node->isFolder || node->readOnly)
        return FileError::AccessDenied;
    if (place.Value().endsInBackslash)
        return FileError::NotFound;
    if (node->Held())
        return FileError::InUse;
    if (place.Value().parent->writingDenied)
        return FileError::AccessDenied;
    TakeOut(place.Value());
    return {};
}

Status MemoryFileSystem::DeleteOriginal(const std::string& original, const std::string& copy) {
    const Result<Node> kept = FindFile(copy);
    const Result<Node> going = FindFile(original);
    if (!kept.Ok())
        return kept.Error();
    return going.Ok() && going.Value() == kept.Value() ? Status(FileError::InUse)
                                                       : Delete(original);
}

Status MemoryFileSystem::CreateFolder(const std::string& path) {
    Log("CreateFolder " + path);
    const Result<Place> place = Find(path);
    if (!place.Ok())
        return place.Error();
    if (place.Value().node)
        return FileError::AlreadyExists;
    if (place.Value().parent->writingDenied)
        return FileError::AccessDenied;
    NewNode(place.Value(), true);
    return {};
}

Result<std::uint64_t> MemoryFileSystem::FreeSpace(const std::string& root) {
    Log("FreeSpace " + root);
    const Result<Node> node = FindNode(root);
    if (!node.Ok())
        return node.Error();
    return node.Value()->space->Free();
}

// The place of a path whose parent folder exists; a root's place has no parent.
Result<MemoryFileSystem::Place> MemoryFileSystem::Find(std::string_view path) const {
    const Result<PathParts> parts = SplitPath(path);
    if (!parts.Ok())
        return parts.Error();
    Place place;
    place.endsInBackslash = parts.Value().endsInBackslash;
    place.node = Root(parts.Value().root);
    if (!place.node)
        return FileError::NotFound;
    for (const std::string& name : parts.Value().names) {
        if (!place.node || !place.node->isFolder)
            return FileError::NotFound;
        place.parent = place.node;
        place.name = name;
        const auto child = place.parent->children.find(FoldName(name));
        place.node = child == place.parent->children.end() ? nullptr : child->second;
    }
    return place;
}

Result<MemoryFileSystem::Node> MemoryFileSystem::FindNode(std::string_view path) const {
    const Result<Place> place = Find(path);
    if (!place.Ok())
        return place.Error();
    const Node& node = place.Value().node;
    if (!node || (place.Value().endsInBackslash && !node->isFolder))
        return FileError::NotFound;
    return node;
}

Result<MemoryFileSystem::Node> MemoryFileSystem::FindFile(const std::string& path) const {
    const Result<Node> node = FindNode(path);
    if (node.Ok() && node.Value()->isFolder)
        return FileError::AccessDenied;
    return node;
}

MemoryFileSystem::Node MemoryFileSystem::Root(const std::string& root) const {
    const auto drive = drives_.find(FoldName(root));
    return drive == drives_.end() ? nullptr : drive->second;
}

MemoryFileSystem::Node MemoryFileSystem::NewNode(const Place& place, bool isFolder) {
    const Node node = std::make_shared<MemoryNode>(place.parent->space);
    node->isFolder = isFolder;
    node->lastWrite = clock_->Tick();
    Put(place, node);
    return node;
}

void MemoryFileSystem::Put(const Place& place, const Node& node) {
    node->name = place.name;
    place.parent->children[FoldName(place.name)] = node;
    place.parent->lastWrite = clock_->Tick();
}

void MemoryFileSystem::TakeOut(const Place& place) {
    place.parent->children.erase(FoldName(place.name));
    place.parent->lastWrite = clock_->Tick();
}

void MemoryFileSystem::Log(const std::string& entry) {
    if (log_ != nullptr)
        log_->Add(entry);
}

}  // namespace zentar
