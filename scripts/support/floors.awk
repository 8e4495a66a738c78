# SPDX-License-Identifier: MIT
# Implements scripts/floors. Reads five files: the page with the tables of layers and of exceptions, a list of source
# files, and lines of these as "file:line:text": their includes, the first lines of classes and namespaces, and the
# first lines of functions outside of classes.

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

# | `Class::member` | the module of the definition | the reason |; the member may be "*".
input == 1 && /^\| *`[A-Za-z0-9_]+::[A-Za-z0-9_*]+` *\|/ {
    split($0, cells, /[|`]/)
    excepted[cells[3]] = 1
}

input == 2 && FNR == 1 && !rows {
    complain("docs/architecture.md has no table of layers")
    exit
}

input == 2 {
    known[$0] = 1
    sources[++files] = $0
    if (module($0) == "")
        complain($0 ": is not in a module of the table of layers")
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
    from = module(file)
    to = module(target)
    includes++
    if (from != "" && to == "")
        complain(file ":" parts[2] ": includes " included ", which is not in a module of the table of layers")
    else if (from != "" && layers[to] > layers[from])
        complain(file ":" parts[2] ": " from " (layer " layers[from] ") includes " included " of layer " layers[to])
    if (target in known) {
        edges[file] = edges[file] "\n" target
        lines[file, target] = parts[2]
    }
}

input == 4 {
    split($0, parts, ":")
    text = substr($0, length(parts[1]) + length(parts[2]) + 3)
    sub(/^[ \t]*(class|struct|namespace)[ \t]+(CORVEX_[A-Z_]*EXPORT[ \t]+)?/, "", text)
    match(text, /^[A-Za-z0-9_:]*/)
    name = substr(text, 1, RLENGTH)
    sub(/.*::/, "", name)
    if (name != "")
        declared[name] = declared[name] "\n" module(parts[1])
}

input == 5 {
    split($0, parts, ":")
    text = substr($0, length(parts[1]) + length(parts[2]) + 3)
    sub(/\(.*/, "", text)
    sub(/.*[ *&]/, "", text)
    count = split(text, names, "::")
    for (i = 1; i < count && !(names[i] in declared); i++)
        ;
    here = module(parts[1])
    if (i == count || here == "" || index(declared[names[i]] "\n", "\n" here "\n"))
        next
    member = names[i] "::" names[count]
    if (member in excepted)
        used[member] = 1
    else if ((names[i] "::*") in excepted)
        used[names[i] "::*"] = 1
    else {
        split(declared[names[i]], modules, "\n")
        complain(parts[1] ":" parts[2] ": " here " defines " member ", which " modules[2] " declares")
    }
}

END {
    for (member in excepted)
        if (!(member in used) && !problems)
            complain("the page lists " member " as an exception, but its module declares it or nobody defines it")
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

# The module of a file: "values" for "libs/corvex/values/X.h", "editing/undo", "plugins", "apps".
function module(file,    path, names)
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
