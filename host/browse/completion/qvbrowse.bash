# Completion of qvbrowse for bash; bash-completion loads it when it is first needed.

_qvbrowse() {
  local cur prev words cword
  _init_completion -n := || return

  # What stands before the cursor: the command, its arguments, and where the tools come from.
  local command='' arguments=() sources=() word i
  for ((i = 1; i < cword; i++)); do
    word=${words[i]//\\/}
    case $word in
      --module | --tools)
        ((++i < cword)) && sources+=("$word" "$(_qvbrowse_expand "${words[i]}")")
        ;;
      --module=* | --tools=*) sources+=("$word") ;;
      --depth | --filter) ((++i)) ;;
      -*) ;;
      *) if [[ $command ]]; then arguments+=("$word"); else command=$word; fi ;;
    esac
  done

  case $prev in
    --module) _filedir qvmodule; return ;;
    --tools) _qvbrowse_sources; return ;;
    --filter) COMPREPLY=($(compgen -W 'all items' -- "$cur")); return ;;
    --depth) return ;;
  esac
  if [[ $cur == -* ]]; then
    local options='--help --json --module --no-pager --require-isolation --tools'
    case $command in
      '') options+=' --version' ;;
      ls) options+=' --unsorted --filter' ;;
      tree) options+=' --depth' ;;
      run-action) options+=' --no-workspace' ;;
      detail) options+=' --dump' ;;
      plugins) options+=' --retry' ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$cur"))
    return
  fi

  # An action comes before the scheme.
  local count=${#arguments[@]}
  if [[ $command == run-action ]]; then
    ((count--))
    arguments=("${arguments[@]:1}")
  fi
  case $command:$count in
    :0)
      COMPREPLY=($(compgen -W 'schemes ls tree show search startup actions run-action drag detail
        packages plugins' -- "$cur"))
      ;;
    run-action:-1) _qvbrowse_offer "$(_qvbrowse_ask name actions views)" ;;
    schemes:* | startup:* | packages:* | plugins:*) ;;
    *:0) _qvbrowse_offer "$(_qvbrowse_ask scheme schemes)" ;;
    search:*) ;;
    *:1 | drag:* | detail:*) _qvbrowse_paths "${arguments[0]}" ;;
  esac
}

# A file name as the shell would pass it on.
_qvbrowse_expand() {
  local name=${1//[\\\"\']/}
  printf '%s' "${name/#\~\//$HOME/}"
}

# The values of a key, one a line, in what qvbrowse answers. Values that JSON escapes are left out.
_qvbrowse_ask() {
  "$(_qvbrowse_expand "${words[0]}")" "${sources[@]}" "${@:2}" --json 2>/dev/null |
    sed -n 's/^    "'"$1"'": "\([^"\\]*\)".*/\1/p'
}

# Offers the lines of $1 that go on from what has been typed, each with $2 at its end.
_qvbrowse_offer() {
  local typed=${cur//[\\\"\']/} line
  while IFS= read -r line; do
    [[ $line && $line == "$typed"* ]] || continue
    line+=${2-}
    # Within quotes, the shell itself quotes what it inserts.
    [[ $cur == [\"\']* ]] || line=$(printf %q "$line")
    COMPREPLY+=("$line")
  done <<<"$1"
}

# Paths of a scheme, one level at a time.
_qvbrowse_paths() {
  local typed=${cur//[\\\"\']/} parent='' children
  [[ $typed == */* ]] && parent=${typed%/*}
  children=$(_qvbrowse_ask path ls "$1" "$parent" --filter items)
  if [[ $children ]]; then
    _qvbrowse_offer "$children"
  else
    compopt -o nospace
    _qvbrowse_offer "$(_qvbrowse_ask path ls "$1" "$parent")" /
  fi
}

# What --tools takes.
_qvbrowse_sources() {
  if [[ $cur == frei0r:* ]]; then
    local directory
    compopt -o nospace
    while IFS= read -r directory; do
      COMPREPLY+=("frei0r:$(printf %q "$directory")/")
    done < <(compgen -d -- "$(_qvbrowse_expand "${cur#frei0r:}")")
    __ltrim_colon_completions "$cur"
    return
  fi
  _filedir json
  COMPREPLY+=($(compgen -W 'frei0r frei0r:' -- "$cur"))
}

complete -F _qvbrowse qvbrowse
