"""Checks that every function and variable that the public headers declare can be linked.

usage: declared.py CLANG LIBRARY INCLUDE_FOLDER
"""

import json
import pathlib
import subprocess
import sys


def declared(clang, folder):
    """The mangled names of what the headers declare for applications, and where."""
    headers = sorted(p.relative_to(folder).as_posix() for p in (folder / "orvanta").rglob("*.h"))
    source = "".join(f"#include <{h}>\n" for h in headers if "/qt/" not in h)
    command = [clang, "-std=c++20", "-I", str(folder), "-x", "c++", "-fsyntax-only",
               "-Xclang", "-ast-dump=json", "-Xclang", "-ast-dump-filter=orvanta", "-"]
    dump = subprocess.run(command, input=source, capture_output=True, text=True, check=True).stdout
    decoder, at, names, defined = json.JSONDecoder(), 0, {}, set()
    while (at := dump.find("{", at)) >= 0:
        node, at = decoder.raw_decode(dump, at)
        collect(node, "public", names, defined)
    return {mangled: name for mangled, name in names.items() if mangled not in defined}


def collect(node, access, names, defined):
    kind = node.get("kind", "")
    if kind in ("CXXRecordDecl", "NamespaceDecl", "LinkageSpecDecl", "FriendDecl"):
        current = "private" if node.get("tagUsed") == "class" else "public"
        for child in node.get("inner", []):
            if child.get("kind") == "AccessSpecDecl":
                current = child["access"]
            collect(child, current, names, defined)
    elif "mangledName" in node:
        if defined_in_header(node, kind):
            defined.add(node["mangledName"])
        elif access != "private":
            names[node["mangledName"]] = node.get("name", "?")


def defined_in_header(node, kind):
    if kind == "VarDecl":
        return node.get("storageClass") != "extern"
    if kind not in ("FunctionDecl", "CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl"):
        return True
    return (node.get("pure") or node.get("explicitlyDefaulted") or node.get("explicitlyDeleted")
            or node.get("isImplicit") or node.get("inline")
            or any(c.get("kind") in ("CompoundStmt", "CXXTryStmt") for c in node.get("inner", [])))


def exported(library):
    lines = subprocess.run(["nm", "--dynamic", "--defined-only", library], capture_output=True,
                           text=True, check=True).stdout.splitlines()
    return {line.split()[-1] for line in lines}


def main():
    clang, library, folder = sys.argv[1:]
    names = declared(clang, pathlib.Path(folder))
    if len(names) < 100:
        sys.exit(f"only {len(names)} declarations were found")
    have = exported(library)
    missing = [f"{names[m]} ({m})" for m in sorted(names) if m not in have]
    if missing:
        sys.exit("declared in a public header, but not exported:\n" + "\n".join(missing))


main()
