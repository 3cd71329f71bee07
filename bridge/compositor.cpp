#include "bridge/compositor.h"

#include "bridge/programs.h"
#include "bridge/xconnection.h"
#include "settings/textvalues.h"

namespace {

constexpr char selection[] = "_NET_WM_CM_S";

} // namespace

Compositor::Compositor(const Session &session)
    : m_session(session)
{
    m_session.x.watchSelection(selection);
}

void Compositor::apply()
{
    const bool isWanted = countsAsTrue(m_session.values.text("UseComposite"));
    const bool isEnded = m_wasOff || !isWanted;
    m_waits = isWanted && (isEnded || !m_manager);
    if (m_manager && isEnded)
        m_session.programs.end(m_manager); // the server tells when its selection is free
    m_wasOff = false;
    selectionChanged();
}

void Compositor::selectionChanged()
{
    if (!m_waits || m_manager || m_session.x.isOwned(selection))
        return;
    m_waits = false;
    if (m_session.options.once && !m_session.options.dryRun) // it would have to stay
        return;
    // Anybody on the display can send a command, so what is run is never taken from one.
    const QString manager = m_session.values.fileText("CompositeManager", "/usr/bin/qaz-kompmgr");
    if (!manager.isEmpty())
        m_manager = m_session.programs.start({manager}, [this](bool) {
            m_manager = nullptr;
            selectionChanged();
        });
}
