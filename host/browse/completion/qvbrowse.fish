# Completion of qvbrowse for fish.

# The words before the cursor, without options and their values.
function __qvbrowse_arguments
    set -l skip no
    for word in (commandline -opc)[2..]
        if test $skip = yes
            set skip no
        else if contains -- $word --module --tools --depth --filter
            set skip yes
        else if not string match -q -- '-*' $word
            echo $word
        end
    end
end

# Whether the command is one of $argv[2..] and has $argv[1] arguments already; "+" stands for one or
# more.
function __qvbrowse_at
    set -l arguments (__qvbrowse_arguments)
    contains -- "$arguments[1]" $argv[2..]; or return
    set -l count (math (count $arguments) - 1)
    test "$argv[1]" = $count; or test "$argv[1]" = + -a $count -ge 1
end

# The values of a key, one a line, in what qvbrowse answers. Values that JSON escapes are left out.
function __qvbrowse_ask
    set -l words (commandline -opc)
    set -l sources
    for index in (seq 2 (count $words))
        if contains -- $words[$index] --module --tools; and set -q words[(math $index + 1)]
            set -a sources $words[$index] $words[(math $index + 1)]
        else if string match -qr -- '^--(module|tools)=' $words[$index]
            set -a sources $words[$index]
        end
    end
    $words[1] $sources $argv[2..] --json 2>/dev/null |
        string replace -rf '^    "'$argv[1]'": "([^"\\\\]*)".*' '$1'
end

# Paths of a scheme, one level at a time.
function __qvbrowse_paths
    set -l arguments (__qvbrowse_arguments)
    set -l scheme $arguments[$argv[1]]
    set -l parent (string replace -rf '/[^/]*$' '' -- (commandline -ct | string unescape))
    set -l children (__qvbrowse_ask path ls $scheme "$parent" --filter items)
    if set -q children[1]
        string join \n $children
    else
        __qvbrowse_ask path ls $scheme "$parent" | string replace -r '$' /
    end
end

complete -c qvbrowse -f
complete -c qvbrowse -s h -l help -d 'Show help'
complete -c qvbrowse -l json -d 'Print JSON for a machine'
complete -c qvbrowse -l no-pager -d 'Never show the output through a pager'
complete -c qvbrowse -l require-isolation -d 'Read no plug-in unless it can be isolated completely'
complete -c qvbrowse -l module -rF -d 'The module file to load'
complete -c qvbrowse -l tools -rFa 'frei0r frei0r:' -d 'Where the tools come from'
complete -c qvbrowse -n 'test -z "$(__qvbrowse_arguments)"' -l version -d 'Show the version'

set -l none 'test -z "$(__qvbrowse_arguments)"'
complete -c qvbrowse -n $none -a schemes -d 'Show the schemes and their columns'
complete -c qvbrowse -n $none -a ls -d 'List the children of an item'
complete -c qvbrowse -n $none -a tree -d 'Show the tree below an item, or of all schemes'
complete -c qvbrowse -n $none -a show -d 'Show one item'
complete -c qvbrowse -n $none -a search -d 'Find items by their names and labels'
complete -c qvbrowse -n $none -a startup -d 'Show what the module did while it started'
complete -c qvbrowse -n $none -a actions -d 'List the actions for an item'
complete -c qvbrowse -n $none -a run-action -d 'Perform an action on an item'
complete -c qvbrowse -n $none -a drag -d 'Drag items out of the browser'
complete -c qvbrowse -n $none -a detail -d 'Show items on one detail page'
complete -c qvbrowse -n $none -a packages -d 'Show the packages and their build information'
complete -c qvbrowse -n $none -a plugins -d 'Show the plug-in files, and why some are left out'

set -l takes_scheme ls tree show search actions drag detail
complete -c qvbrowse -n "__qvbrowse_at 0 $takes_scheme" -a '(__qvbrowse_ask scheme schemes)'
complete -c qvbrowse -n '__qvbrowse_at 0 run-action' -a '(__qvbrowse_ask name actions views)'
complete -c qvbrowse -n '__qvbrowse_at 1 run-action' -a '(__qvbrowse_ask scheme schemes)'
complete -c qvbrowse -n '__qvbrowse_at 1 ls tree show actions' -a '(__qvbrowse_paths 2)'
complete -c qvbrowse -n '__qvbrowse_at + drag detail' -a '(__qvbrowse_paths 2)'
complete -c qvbrowse -n '__qvbrowse_at 2 run-action' -a '(__qvbrowse_paths 3)'

set -l command '__fish_seen_subcommand_from'
complete -c qvbrowse -n "$command ls" -l unsorted -d 'Keep the order of the query'
complete -c qvbrowse -n "$command ls" -l filter -xa 'all items' -d 'Which children'
complete -c qvbrowse -n "$command tree" -l depth -x -d 'How many levels below the item'
complete -c qvbrowse -n "$command run-action" -l no-workspace -d 'Run without a workspace'
complete -c qvbrowse -n "$command detail" -l dump -d 'Show the widgets as well'
complete -c qvbrowse -n "$command plugins" -l retry -d 'Try those again that failed before'
