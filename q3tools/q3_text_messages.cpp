#include "q3tools/q3_text_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

FileKind ColouredTexts() { return {"Quake 3 coloured text (*.ini)", "*.ini"}; }

}  // namespace

FileQuestion ColouredTextToSave(const std::string& folder, const std::string& name) {
    return {.title = "Save Quake 3 coloured text",
            .folder = folder,
            .name = name,
            .kinds = {ColouredTexts()}};
}

FileQuestion ColouredTextToOpen(const std::string& folder) {
    return {.title = "Open Quake 3 coloured text",
            .folder = folder,
            .name = "",
            .kinds = {ColouredTexts()}};
}

Message ReallyOverwriteColouredText(std::string_view name) {
    return Confirmation("Really overwrite the existing \"" + std::string(name) +
                        "\" coloured text file?");
}

Message OverwriteReadOnlyColouredText() {
    return FailureWithQuestion(
        Lines({"Couldn't overwrite the file due to it being set as read-only.",
               "Would you like me to remove this setting to force the overwrite?"}));
}

Message ColouredTextNotSaved() {
    return Failure(Lines({"This coloured text couldn't be saved.", "",
                          "The folder may be protected, or its drive may be full."}));
}

Message ColouredTextNotOpened() {
    return Failure(Lines({"This coloured text couldn't be opened.", "",
                          "The file may be in use, or be no coloured text."}));
}

Message ReallyCopyCode() { return Confirmation("Really copy the code to the Windows clipboard?"); }

Message CodeNotCopied() {
    return Failure(Lines({"The code couldn't be copied to the Windows clipboard.", "",
                          "Another program is using it at the moment."}));
}

Message ReallyAddCode() { return Confirmation("Really add the code to \"q3config.cfg\" ?"); }

Message AddToReadOnlyConfig() {
    return FailureWithQuestion(
        Lines({"Couldn't add to \"q3config.cfg\" due to it being set as read-only.",
               "Would you like me to remove this setting to force the addition?"}));
}

Message CodeNotAdded() {
    return Failure(Lines({"The code couldn't be added to \"q3config.cfg\".", "",
                          "The file may be in use, or its drive may be full."}));
}

}  // namespace zentar::messages
