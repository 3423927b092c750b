// The framework classes at the boundary: text, arrays, objects created by name, archives.
#pragma once

#include <quorvel/framework/CArchive.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CException.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>
