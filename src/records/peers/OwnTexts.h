#pragma once

struct Imported;

/// The texts of own foods and recipes follow the rules of the screens on which a person types them.
namespace OwnTexts {
/// Replaces the characters that those screens refuse, and lists what was changed. What breaks
/// another rule is refused.
void Adapt(Imported& imported);
} // namespace OwnTexts
