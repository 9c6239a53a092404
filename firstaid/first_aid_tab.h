// The First Aid tab: a symptom's explanation, and the remedies for it.
#pragma once

#include <optional>
#include <string_view>

#include "core/command_guard.h"
#include "core/program_state.h"
#include "firstaid/symptoms.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

struct FirstAidControls {
    ListBox& lstSymptoms;
    TextBox& txtRemedy;
    Button& cmdRemedy1;
    Button& cmdRemedy2;
};

// What a remedy has the rest of the program do.
class FirstAidHost {
  public:
    virtual ~FirstAidHost() = default;
    virtual void SwitchGame(const GameId& game) = 0;
    // Ends the program, as its close button does.
    virtual void CloseProgram() = 0;
};

class FirstAidTab {
  public:
    // Binds the controls' events and lists the symptoms.
    FirstAidTab(ProgramState& state, const Platform& platform, const FirstAidControls& controls,
                FirstAidHost& host);
    FirstAidTab(const FirstAidTab&) = delete;
    FirstAidTab& operator=(const FirstAidTab&) = delete;

    // No text, and no button that could be clicked; what is selected stays.
    void ClearRemedy();

    void lstSymptoms_Click();
    void cmdRemedy1_Click();
    void cmdRemedy2_Click();

  private:
    std::optional<Symptom> Selected() const;
    SymptomSituation SituationFor(Symptom symptom) const;
    void ShowButtons(RemedyButtons buttons);

    void ApplyFirst(Symptom symptom);
    bool GameFolderIsThere(std::string_view game);
    void EditAutoexec();
    void OpenMouseProperties();
    void RepairFolders(Symptom symptom);
    void RemoveMessages(Symptom symptom);
    void RenameDriver(Symptom symptom, bool setAside);
    void CheckForUpdate();
    void RestoreRegistry();
    void ChangeLogitechSetting();
    // The sound of a remedy that ran, or could not.
    void Tell(bool done);

    ProgramState& state_;
    Platform platform_;
    FirstAidControls controls_;
    FirstAidHost& host_;
    CommandGuard guard_;
};

}  // namespace zentar
