#include "tools/tool_screens.h"

#include "tools/alarm_form.h"
#include "tools/calculator.h"
#include "tools/help.h"
#include "tools/note_book.h"
#include "tools/preferences.h"
#include "tools/viewing.h"

namespace tessera {

void RegisterToolScreens(ScreenRegistry& registry) {
    registry.add<Help>(ScreenName::Help);
    registry.add<Preferences>(ScreenName::Preferences);
    registry.add<Calculator>(ScreenName::Calculator);
    registry.add<AlarmForm>(ScreenName::AlarmForm);
    registry.add<Viewing>(ScreenName::Viewing);
    registry.add<NoteBook>(ScreenName::NoteBook);
}

} // namespace tessera
