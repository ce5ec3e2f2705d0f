#pragma once

#include <wx/panel.h>
#include <wx/scrolwin.h>

#include <utility>

/// A panel that never takes the keyboard itself, but lets its controls have it. The toolkit's own panels take it while
/// none of their controls does, so that the Tab key would stop where nothing can be seen to happen.
template <class Panel>
class Quiet : public Panel
{
public:
    template <class... Arguments>
    explicit Quiet(Arguments&&... arguments) : Panel(std::forward<Arguments>(arguments)...)
    {
        this->m_container.DisableSelfFocus();
    }
};

using QuietPanel = Quiet<wxPanel>;
using QuietScrolledWindow = Quiet<wxScrolledWindow>;
