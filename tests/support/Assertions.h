#pragma once

#include "core/Assertion.h"

#include <string>
#include <vector>

/// Collects the assertions that fail while it lives, each as its expression and its file.
class Assertions
{
public:
    Assertions() : m_Former(Quorvex::Assertion::setHandler(&collect)) { sm_Raised.clear(); }
    ~Assertions() { Quorvex::Assertion::setHandler(m_Former); }
    Assertions(const Assertions&) = delete;
    Assertions& operator=(const Assertions&) = delete;

    const std::vector<std::string>& raised() const { return sm_Raised; }

private:
    static void collect(const char* expression, const char* file, int)
    {
        sm_Raised.push_back(std::string(expression) + " " + file);
    }

    static inline std::vector<std::string> sm_Raised;
    Quorvex::Assertion::Handler m_Former;
};
