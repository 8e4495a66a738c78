# SPDX-License-Identifier: MIT
# Implements scripts/floors. Reads three files: the page with the table of layers, a list of source files, and
# their include lines as "file:line:#include ...".

FNR == 1 { input++ }

# | 3 | `editing/undo`, `runtime` | ... |
input == 1 && /^\| *[0-9]+ *\|/ {
    split($0, cells, "|")
    count = split(cells[3], names, /[`, ]+/)
    for (i = 1; i <= count; i++)
        if (names[i] != "")
            layers[names[i]] = cells[2] + 0
    rows++
}

input == 2 && FNR == 1 && !rows {
    complain("docs/architecture.md has no table of layers")
    exit
}

input == 2 {
    known[$0] = 1
    sources[++files] = $0
    if (room($0) == "")
        complain($0 ": is not in a room of the table of layers")
}

input == 3 {
    split($0, parts, ":")
    file = parts[1]
    if (!match($0, /["<][^">]+[">]/))
        next
    included = substr($0, RSTART + 1, RLENGTH - 2)
    target = resolved(file, included)
    if (target == "")
        next
    from = room(file)
    to = room(target)
    includes++
    if (from != "" && to == "")
        complain(file ":" parts[2] ": includes " included ", which is not in a room of the table of layers")
    else if (from != "" && layers[to] > layers[from])
        complain(file ":" parts[2] ": " from " (layer " layers[from] ") includes " included " of layer " layers[to])
    if (target in known) {
        edges[file] = edges[file] "\n" target
        lines[file, target] = parts[2]
    }
}

END {
    for (i = 1; i <= files; i++)
        if (!(sources[i] in state))
            visit(sources[i])
    if (problems)
        exit 1
    print "floors: " files " files, " includes " includes between them: each layer uses only itself and lower layers"
}

function complain(text)
{
    print text
    problems++
}

# The room of a file: "values" for "libs/corvex/values/X.h", "editing/undo", "plugins", "apps".
function room(file,    path, names)
{
    path = file
    sub(/^libs\/corvex\//, "", path)
    split(path, names, "/")
    if ((names[1] "/" names[2]) in layers)
        return names[1] "/" names[2]
    return names[1] in layers ? names[1] : ""
}

# The file of this tree that an include line refers to, or "" for any other header.
function resolved(file, included,    path)
{
    if (included ~ /^corvex\//)
        return "libs/" included
    path = file
    sub(/[^\/]*$/, "", path)
    path = path included
    while (sub(/[^\/]+\/\.\.\//, "", path))
        ;
    if (path in known)
        return path
    # Programs and plug-ins include their files relative to their own folder or a parent folder.
    path = file
    while (sub(/\/[^\/]*$/, "", path))
        if ((path "/" included) in known)
            return path "/" included
    return ""
}

# Follows the includes of a file depth first. A file that is already on the path closes a cycle.
function visit(file,    targets, count, i)
{
    state[file] = "open"
    trail[++depth] = file
    count = split(edges[file], targets, "\n")
    for (i = 2; i <= count; i++) {
        if (!(targets[i] in state))
            visit(targets[i])
        else if (state[targets[i]] == "open")
            complain(cycle(targets[i]))
    }
    depth--
    state[file] = "done"
}

function cycle(first,    i, text)
{
    for (i = depth; trail[i] != first; i--)
        ;
    text = trail[i] ":" lines[trail[i], i < depth ? trail[i + 1] : first] ": a cycle of includes: " trail[i]
    while (i < depth)
        text = text " -> " trail[++i]
    return text " -> " first
}
