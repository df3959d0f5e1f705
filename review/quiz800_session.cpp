// Quiz800's events handed to its ReviewSession, and the screens beside the test: the picture,
// the wishes, help and the desk tools, and the navigation screen at the close.

#include "review/quiz800.h"

#include "core/picture_window.h"
#include "review/aladdin.h"

#include <QPushButton>
#include <QTimer>

namespace tessera {

void Quiz800::ShowItem(int position) {
    m_session.showItem(position);
    showSession();
}

void Quiz800::Command1_Click(int index) {
    switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
        m_session.answerCommand(index);
        break;
    case ReviewCommand::Aladdin:
        OpenAladdin();
        break;
    case ReviewCommand::Next:
        if (m_session.nextItem()) {
            close();
            return;
        }
        break;
    case ReviewCommand::Break:
        close();
        return;
    case ReviewCommand::Help:
        m_context.screens.openHelp(m_state, HelpTopic::Quiz800);
        return;
    case ReviewCommand::NoteBook:
        m_context.screens.showNormal(ScreenName::NoteBook);
        return;
    case ReviewCommand::Calculator:
        m_context.screens.showNormal(ScreenName::Calculator);
        return;
    case ReviewCommand::Previous:
        m_session.previousItem();
        break;
    case ReviewCommand::Picture:
        showPicture();
        return;
    default:
        return;
    }
    showSession();
}

void Quiz800::showPicture() {
    if (const std::optional<PictureEntry> picture = m_session.picture()) {
        ShowPicture(m_context.screens, picture->width, picture->height,
                    QString::fromStdString(picture->fileName()));
    } else {
        m_context.screens.unload(ScreenName::PictForm);
    }
}

void Quiz800::Form_Unload() {
    if (m_session.isUnloaded())
        return;
    Timer1->stop();
    m_context.screens.unload(ScreenName::PictForm);
    m_context.screens.setNavigationEnabled(true);
    m_session.unload();
    m_context.screens.refreshNavigation();
}

void Quiz800::OpenAladdin() {
    {
        Aladdin dialog(m_state, m_context.screens, m_session.openAnswers(), this);
        dialog.exec();
    }
    m_session.applyWish();
}

} // namespace tessera
