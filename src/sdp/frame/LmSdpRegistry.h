#pragma once

#include "LmLibs/LmUtil/LmString.h"
#include "core/ProcessExit.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>

/// Which class is made for which token: an ordered map of functions that make a `Product`. The first registration of
/// a token stays.
///
/// Beside the map stands a table of the one-letter tokens, since a body asks for one with each line.
template <typename Product>
class LmSdpRegistry
{
public:
    using Constructor = Product* (*)();

    /// Adds to the registry that `pRegistry` refers to. The first call makes it and has ACE_Object_Manager destroy it
    /// when the process exits.
    static void sAdd(LmSdpRegistry*& pRegistry, const char* token, Constructor constructor)
    {
        if (pRegistry == nullptr)
        {
            pRegistry = new LmSdpRegistry;
            Quorvex::ProcessExit::sAdd(&pRegistry, &LmSdpRegistry::sCleanUp, "LmSdpRegistry");
        }
        pRegistry->add(token, constructor);
    }

    /// What is registered for a token; null for none. Allocates nothing.
    Constructor find(const char* token) const
    {
        if (__builtin_expect(token[0] != '\0' && token[1] == '\0', 1))
        {
            return m_ByLetter[static_cast<unsigned char>(token[0])];
        }
        const auto entry = m_Constructors.find(token);
        return entry == m_Constructors.end() ? nullptr : entry->second;
    }

    /// The letters a to z that are registered as tokens of their own, one bit each.
    std::uint32_t letters() const { return m_Letters; }

private:
    struct Less
    {
        using is_transparent = void;

        bool operator()(const LmString& left, const LmString& right) const
        {
            return left.compareWith(right.c_str()) < 0;
        }
        bool operator()(const LmString& left, const char* right) const { return left.compareWith(right) < 0; }
        bool operator()(const char* left, const LmString& right) const { return right.compareWith(left) > 0; }
    };

    void add(const char* token, Constructor constructor)
    {
        const auto inserted = m_Constructors.emplace(token, constructor);
        const LmString& key = inserted.first->first;
        if (key.length() == 1)
        {
            const char letter = key.view().front();
            m_ByLetter[static_cast<unsigned char>(letter)] = inserted.first->second;
            m_Letters |= letter >= 'a' && letter <= 'z' ? std::uint32_t(1) << (letter - 'a') : 0;
        }
    }

    static void sCleanUp(void* object, void*)
    {
        LmSdpRegistry*& pRegistry = *static_cast<LmSdpRegistry**>(object);
        delete pRegistry;
        pRegistry = nullptr;
    }

    std::map<LmString, Constructor, Less> m_Constructors;
    std::array<Constructor, 256> m_ByLetter{};
    std::uint32_t m_Letters = 0;
};
