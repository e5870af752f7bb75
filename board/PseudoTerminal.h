#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace haldenboard {

/// A pseudo-terminal whose far side a host opens as its serial port. This side also keeps the far
/// side open, so that a host that leaves does not hang up the line for the next one.
class PseudoTerminal {
public:
    /// @throws std::system_error if the system gives none
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    int Handle() const { return master_; }            ///< to wait for input on
    int FarHandle() const { return slave_; }          ///< the host's side, as kept open here
    const std::string& Name() const { return name_; } ///< path of the host's side

    /// Takes what the host has written, without waiting.
    /// @return number of bytes, 0 if there are none
    size_t Read(std::span<uint8_t> room);

    /// Hands bytes to the host, without waiting. What a host that does not read has no room for is
    /// dropped, as a UART drops it.
    void Write(std::span<const uint8_t> bytes);

private:
    int master_ = -1;
    int slave_ = -1;
    std::string name_;
};

/// A symbolic link that lives as long as this object.
class TerminalLink {
public:
    /// Makes `path` a link to `target`; a link that stands there already is replaced.
    /// @throws std::system_error if that fails, or if something other than a link stands there
    TerminalLink(std::string path, std::string target);
    /// Removes the link, unless someone has pointed it elsewhere since.
    ~TerminalLink();
    TerminalLink(const TerminalLink&) = delete;
    TerminalLink& operator=(const TerminalLink&) = delete;

private:
    std::string path_;
    std::string target_;
};

} // namespace haldenboard
