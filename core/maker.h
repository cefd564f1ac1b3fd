#pragma once

/// Where the maker is found.
namespace tarvelon::maker {

inline constexpr const char* name = "Quillfen";
inline constexpr const char* webPage = "http://www.quillfen.example/";
inline constexpr const char* updateUtilityPage = "http://www.quillfen.example/orbexa/";
inline constexpr const char* supportAddress = "support@quillfen.example";

} // namespace tarvelon::maker
