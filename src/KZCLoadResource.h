// Finds the resource folder and the files in it.
#pragma once

#include <string>

/// Keeps no state: every call looks anew.
class KZCLoadResource
{
public:
    /// The folder KZEkaMok.bundle, or the empty text if there is none.
    ///
    /// The environment variable KZEKAMOK_BUNDLE, if set and not empty, alone counts and names the
    /// folder itself; set-user-id programs ignore it. Otherwise the first that exists of: beside
    /// the file that holds this code; share/KZEkaMok below the prefix in which that file is
    /// installed.
    static std::string getBundlePath();

    /// The file of that folder with the last path component of strName, or the empty text if there
    /// is none or a folder of that name.
    static std::string getPathName(const std::string& strName);
};
