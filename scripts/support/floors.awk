# SPDX-License-Identifier: MIT
# The work of scripts/floors. Reads three files: the page that holds the table of floors, a list of source
# files, and their include lines as "file:line:#include ...".

FNR == 1 { input++ }

# | 3 | `editing/undo`, `runtime` | ... |
input == 1 && /^\| *[0-9]+ *\|/ {
    split($0, cells, "|")
    count = split(cells[3], names, /[`, ]+/)
    for (i = 1; i <= count; i++)
        if (names[i] != "")
            floors[names[i]] = cells[2] + 0
    rows++
}

input == 2 && FNR == 1 && !rows {
    complain("no row of a table of floors in the page of the architecture")
    exit
}

input == 2 {
    known[$0] = 1
    sources[++files] = $0
    if (room($0) == "")
        complain($0 ": stands in no room of the table of floors")
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
        complain(file ":" parts[2] ": includes " included ", which stands in no room of the table of floors")
    else if (from != "" && floors[to] > floors[from])
        complain(file ":" parts[2] ": " from " (floor " floors[from] ") includes " included " of floor " floors[to])
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
    print "floors: " files " files, " includes " includes between them: each floor knows only itself and those below"
}

function complain(text)
{
    print text
    problems++
}

# The room of a file: "values" of "libs/corvex/values/X.h", "editing/undo", "plugins", "apps".
function room(file,    path, names)
{
    path = file
    sub(/^libs\/corvex\//, "", path)
    split(path, names, "/")
    if ((names[1] "/" names[2]) in floors)
        return names[1] "/" names[2]
    return names[1] in floors ? names[1] : ""
}

# The file of this tree that an include line means, or "" for a header from elsewhere.
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
    # Programs and plug-ins name their files from their own folder, or from the one above.
    path = file
    while (sub(/\/[^\/]*$/, "", path))
        if ((path "/" included) in known)
            return path "/" included
    return ""
}

# Walks the includes of a file depth first; a file that is met again while it is on the path closes a ring.
function visit(file,    targets, count, i)
{
    state[file] = "open"
    trail[++depth] = file
    count = split(edges[file], targets, "\n")
    for (i = 2; i <= count; i++) {
        if (!(targets[i] in state))
            visit(targets[i])
        else if (state[targets[i]] == "open")
            complain(ring(targets[i]))
    }
    depth--
    state[file] = "done"
}

function ring(first,    i, text)
{
    for (i = depth; trail[i] != first; i--)
        ;
    text = trail[i] ":" lines[trail[i], i < depth ? trail[i + 1] : first] ": a ring of includes: " trail[i]
    while (i < depth)
        text = text " -> " trail[++i]
    return text " -> " first
}
