# Completion of kestrolin-cli for bash.
# shellcheck shell=bash

# What may follow an option that has a value, in COMPREPLY. False for an option that has none.
_kestrolin_cli_value() {
  local words='' files=
  case $1 in
    --encoder) words='speex adpcm pcm wav' ;;
    --language) words='c c++' ;;
    --dac) words='8 10 12 16' ;;
    --quality | --complexity) words='0 1 2 3 4 5 6 7 8 9 10' ;;
    --bitrate) words='fixed variable average' ;;
    --class | --max-bitrate) ;;
    --to) files=-d ;;
    -o | --output | --declarations | --source | --depfile | --settings | --plot) files=-f ;;
    *) return 1 ;;
  esac
  if [[ $files ]]; then
    compopt -o filenames 2>/dev/null
  fi
  mapfile -t COMPREPLY < <(compgen ${files:+"$files"} -W "$words" -- "$2")
}

_kestrolin_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W 'encode list decode play compare -h --help --version' -- "$word")
    return
  fi
  if _kestrolin_cli_value "$before" "$word"; then
    return
  fi
  local options='-h --help' files='*'
  case $command in
    encode)
      options+=' --encoder --language --class --dac --header --no-header --quality --complexity
        --bitrate --max-bitrate --vad --no-vad --denoise --no-denoise --agc --no-agc -o --output
        --append --declarations --source --flash --states --depfile --settings -v --verbose'
      files='*.[wW][aA][vV]'
      ;;
    list) options+=' --json' ;;
    decode) options+=' --to --dac -v --verbose' ;;
    play) options+=' --dac' ;;
    compare)
      options+=' --plot --json'
      files='*.[wW][aA][vV]'
      ;;
    *) return ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  else
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X "!$files" -- "$word"; compgen -d -- "$word")
  fi
}

complete -F _kestrolin_cli kestrolin-cli
